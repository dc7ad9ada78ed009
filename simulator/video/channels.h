// The camera's video channels and the canvases shown on them.
#pragma once

#include <array>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "simulator/video/layer.h"

namespace sim {

constexpr int channel_count = 3;
constexpr std::array<const char*, channel_count> channel_names = {"main", "sub", "preview"};

/// Which canvases lie on which channel. A canvas is known by the address of its record; one that is shown again keeps
/// its place in the pile. Safe to use from several threads.
class Channels {
public:
    explicit Channels(Size main_size);

    Size size(int channel) const
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return channels_.at(static_cast<std::size_t>(channel)).size;
    }
    /// Gives the main channel another size.
    void resize_main(Size size)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        channels_.front().size = size;
    }

    /// A new canvas lies on top of the others, or below them.
    void show(int channel, const void* canvas, std::shared_ptr<const Layer> layer, bool below = false);
    void hide(int channel, const void* canvas);

    /// Lays all canvases of a channel over a picture of the channel's size.
    void lay_canvases_over(int channel, Image& picture);

private:
    struct Shown {
        const void* canvas = nullptr;
        std::shared_ptr<const Layer> layer;
        std::optional<ScaledLayer> scaled; ///< made when somebody looks: most pushes are seen on one channel only
    };
    struct Channel {
        Size size;
        std::vector<Shown> pile; ///< lowest first
    };

    mutable std::mutex mutex_; ///< guards the channels
    std::array<Channel, channel_count> channels_;
};

} // namespace sim
