#include "simulator/video/channels.h"

#include <algorithm>
#include <utility>

namespace sim {

Channels::Channels(Size main_size)
{
    constexpr Size sub_size{1280, 720};
    constexpr Size preview_size{640, 360};
    channels_ = {{{main_size, {}}, {sub_size, {}}, {preview_size, {}}}};
}

Size Channels::size(int channel) const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return at(channel).size;
}

void Channels::resize_main(Size size)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    at(0).size = size;
    count_change();
}

void Channels::show(int channel, const void* canvas, std::shared_ptr<const Layer> layer, bool below)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    std::vector<Shown>& pile = at(channel).pile;
    const auto same = [canvas](const Shown& shown) { return shown.canvas == canvas; };
    const auto found = std::find_if(pile.begin(), pile.end(), same);
    if (found == pile.end()) {
        pile.insert(below ? pile.begin() : pile.end(), {canvas, below, std::move(layer), nullptr});
    } else {
        *found = {canvas, below, std::move(layer), nullptr};
    }
    count_change();
}

void Channels::hide(int channel, const void* canvas)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    std::vector<Shown>& pile = at(channel).pile;
    const auto same = [canvas](const Shown& shown) { return shown.canvas == canvas; };
    pile.erase(std::remove_if(pile.begin(), pile.end(), same), pile.end());
    count_change();
}

void Channels::lay_canvases_over(int channel, Image& picture)
{
    for (Shown& shown : pile_of(channel)) {
        if (shown.scaled == nullptr || shown.scaled->channel != picture.size) {
            shown.scaled = std::make_shared<const ScaledLayer>(scale_layer(*shown.layer, picture.size));
            keep_scaled(channel, shown);
        }
        blend_layer(picture, *shown.scaled);
    }
}

std::optional<Image> Channels::lowest_canvas(int channel) const
{
    const std::vector<Shown> pile = pile_of(channel);
    if (pile.empty() || !pile.front().below) {
        return std::nullopt;
    }
    return pile.front().layer->pixels;
}

std::uint64_t Channels::changes() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return changes_;
}

bool Channels::wait_for_change(std::uint64_t seen, std::chrono::steady_clock::time_point until) const
{
    std::unique_lock<std::mutex> lock(mutex_);
    const std::uint64_t wakes_before = wakes_;
    changed_.wait_until(lock, until, [&] { return changes_ != seen || wakes_ != wakes_before; });
    return changes_ != seen;
}

void Channels::wake()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    ++wakes_;
    changed_.notify_all();
}

/// A copy shares the pixels, so that who has it needs the lock no longer.
std::vector<Channels::Shown> Channels::pile_of(int channel) const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return at(channel).pile;
}

/// For the next picture, unless the canvas was hidden or pushed again in the meantime.
void Channels::keep_scaled(int channel, const Shown& made)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    for (Shown& shown : at(channel).pile) {
        if (shown.layer == made.layer) {
            shown.scaled = made.scaled;
        }
    }
}

/// Under the lock.
void Channels::count_change()
{
    ++changes_;
    changed_.notify_all();
}

} // namespace sim
