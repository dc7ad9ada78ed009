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

void Channels::show(int channel, const void* canvas, std::shared_ptr<const Layer> layer, bool below)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    std::vector<Shown>& pile = channels_.at(static_cast<std::size_t>(channel)).pile;
    const auto same = [canvas](const Shown& shown) { return shown.canvas == canvas; };
    const auto found = std::find_if(pile.begin(), pile.end(), same);
    if (found == pile.end()) {
        pile.insert(below ? pile.begin() : pile.end(), {canvas, std::move(layer), std::nullopt});
    } else {
        *found = {canvas, std::move(layer), std::nullopt};
    }
}

void Channels::hide(int channel, const void* canvas)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    std::vector<Shown>& pile = channels_.at(static_cast<std::size_t>(channel)).pile;
    const auto same = [canvas](const Shown& shown) { return shown.canvas == canvas; };
    pile.erase(std::remove_if(pile.begin(), pile.end(), same), pile.end());
}

void Channels::lay_canvases_over(int channel, Image& picture)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    for (Shown& shown : channels_.at(static_cast<std::size_t>(channel)).pile) {
        if (!shown.scaled) {
            shown.scaled = scale_layer(*shown.layer, picture.size);
        }
        blend_layer(picture, *shown.scaled);
    }
}

} // namespace sim
