// The camera's video channels and the canvases shown on them.
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "simulator/video/layer.h"

namespace sim {

constexpr int channel_count = 3;
constexpr std::array<const char*, channel_count> channel_names = {"main", "sub", "preview"};

/// Which canvases lie on which channel. A canvas is known by the address of its record; one that is shown again keeps
/// its place in the pile. Safe to use from several threads: none waits while another one scales or blends.
class Channels {
public:
    explicit Channels(Size main_size);

    Size size(int channel) const;
    /// Gives the main channel another size; counts as a change.
    void resize_main(Size size);

    /// A new canvas lies on top of the others, or below them.
    void show(int channel, const void* canvas, std::shared_ptr<const Layer> layer, bool below = false);
    void hide(int channel, const void* canvas);

    /// Lays all canvases of a channel over a picture of the channel's size.
    void lay_canvases_over(int channel, Image& picture);

    /// The canvas that was shown below the others, in its own size; none while it is hidden.
    std::optional<Image> lowest_canvas(int channel) const;

    /// How often something was shown, hidden or resized, on any channel.
    std::uint64_t changes() const;
    /// Waits until changes() differs from what was seen, until the time is over or until somebody calls wake(). True
    /// when there was a change.
    bool wait_for_change(std::uint64_t seen, std::chrono::steady_clock::time_point until) const;
    /// Ends the waiting of all who wait at this moment; who begins to wait later isn't woken.
    void wake();

private:
    struct Shown {
        const void* canvas = nullptr;
        bool below = false;
        std::shared_ptr<const Layer> layer;
        /// Made when somebody looks: most pushes are seen on one channel only.
        std::shared_ptr<const ScaledLayer> scaled;
    };
    struct Channel {
        Size size;
        std::vector<Shown> pile; ///< lowest first
    };

    const Channel& at(int channel) const { return channels_.at(static_cast<std::size_t>(channel)); }
    Channel& at(int channel) { return channels_.at(static_cast<std::size_t>(channel)); }
    std::vector<Shown> pile_of(int channel) const;
    void keep_scaled(int channel, const Shown& made);
    void count_change();

    mutable std::mutex mutex_; ///< guards all below
    mutable std::condition_variable changed_;
    std::array<Channel, channel_count> channels_;
    std::uint64_t changes_ = 0;
    std::uint64_t wakes_ = 0;
};

} // namespace sim
