#include "simulator/camera/video_output.h"

#include <memory>
#include <string>
#include <utility>

#include "simulator/base/log.h"

namespace sim {
namespace {

/// Marks the canvas of the menu, which lies below all prompts.
constexpr std::uint8_t menu_canvas = 128;

Size main_size(bool uhd) { return uhd ? Size{3840, 2160} : Size{1920, 1080}; }

} // namespace

VideoOutput::VideoOutput(const Settings& settings, const Uptime& uptime, const Config& config)
    : channels(main_size(config.uhd)), settings_(settings), uptime_(uptime), still_(config.still),
      clouds_(config.clouds), mounting_(look_of(settings).mounting)
{
}

bool VideoOutput::push(bool show, const tagOSD_MENU_CANVAS_S& canvas, std::size_t bytes, std::optional<int> channel)
{
    const char* problem = show ? canvas_problem(canvas, bytes) : nullptr;
    if (problem != nullptr) {
        log_line(LogLevel::Error, "media", std::string("a canvas is not shown: ") + problem);
        return false;
    }
    const auto layer = show ? std::make_shared<const Layer>(copy_canvas(canvas)) : nullptr;
    for (int i = channel.value_or(0); i < channel.value_or(channel_count - 1) + 1; ++i) {
        if (show) {
            channels.show(i, &canvas, layer, canvas.u8CanvasAttr == menu_canvas);
        } else {
            channels.hide(i, &canvas);
        }
    }
    return true;
}

void VideoOutput::attach(int channel)
{
    if (menu_refresh_ != nullptr && started_channels_.insert(channel).second) {
        OSD_ATTACH_INFO_S which{channel};
        (void)menu_refresh_(1, &which); // without the menu the channel still has its picture
    }
}

VideoOutput::Moment VideoOutput::present_moment() const
{
    const std::lock_guard<std::mutex> lock(look_mutex_);
    Moment moment{look_of(settings_), still_ ? 0.0 : uptime_.seconds() - picture_start_};
    moment.look.mounting = mounting_;
    moment.look.clouds = clouds_;
    return moment;
}

Image VideoOutput::draw(int channel)
{
    const Moment moment = present_moment();
    Image picture = draw_picture(channels.size(channel), moment.look, moment.seconds);
    channels.lay_canvases_over(channel, picture);
    return picture;
}

Image VideoOutput::look_at(int channel)
{
    attach(channel);
    return draw(channel);
}

void VideoOutput::resize(bool uhd) { channels.resize_main(main_size(uhd)); }

bool VideoOutput::restart_if_asked()
{
    if (!std::exchange(restart_asked_, false)) {
        return false;
    }
    const std::lock_guard<std::mutex> lock(look_mutex_);
    picture_start_ = uptime_.seconds();
    mounting_ = look_of(settings_).mounting;
    return true;
}

} // namespace sim
