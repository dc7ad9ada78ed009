#include "simulator/core/camera.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <tinyxml2.h>
#include <utility>
#include <vector>

#include "simulator/core/data.h"
#include "simulator/core/log.h"
#include "simulator/core/page_files.h"
#include "simulator/core/services.h"
#include "simulator/video/picture.h"

namespace sim {
namespace {

/// Marks the canvas of the menu, which lies below all prompts.
constexpr std::uint8_t menu_canvas = 128;

constexpr Size full_hd{1920, 1080};
constexpr Size ultra_hd{3840, 2160};

bool begins_with_letter(const std::string& text)
{
    const char first = text.empty() ? '\0' : text.front();
    return (first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z');
}

SettingsStore open_store(const std::filesystem::path& file, bool reset)
{
    if (!reset) {
        return SettingsStore(file);
    }
    try {
        SettingsStore store(file);
        store.clear();
        return store;
    } catch (const BadDatabase&) {
        const std::filesystem::path backup = move_database_aside(file);
        std::cout << "moved the unusable settings database to " << backup.string() << std::endl;
    }
    return SettingsStore(file);
}

/// What can't be used of them is left out.
std::map<std::string, pages::Texts> read_languages(const std::filesystem::path& folder,
                                                   const std::map<std::string, std::string>& languages)
{
    std::map<std::string, pages::Texts> texts;
    std::vector<BadInput> mistakes;
    std::vector<pages::Allowance> allowances;
    for (const auto& [option, language] : languages) {
        texts[language] = pages::read_texts(folder / (language + ".json"), mistakes, allowances);
    }
    return texts;
}

} // namespace

Camera::Camera(const CameraConfig& config)
    : definitions_(load_definitions(config.resources / "settings.json")),
      texts_(read_languages(config.resources / "lang", definitions_.languages)),
      forced_language_(config.language ? option_of_language(definitions_, *config.language) : ""), folder_(config.data),
      store_(open_store(folder_.database(), config.reset)), settings_(definitions_.settings, store_),
      channels_(config.uhd ? ultra_hd : full_hd), resources_(config.resources), pages_(config.pages),
      still_(config.still), clouds_(config.clouds), mounting_(look_of(settings_).mounting)
{
    if (!forced_language_.empty()) {
        settings_.set_for_this_run(language_setting, forced_language_);
    }
    settings_.listen([this](const SettingId& id, const std::string&) {
        if (name_of(id) == name_of(language_setting)) {
            events_.tell({"language", language()});
        }
    });
    set_current_camera(this);
}

Camera::~Camera() { set_current_camera(nullptr); }

const std::string& Camera::language() const { return definitions_.languages.at(settings_.value(language_setting)); }

const std::string* Camera::translate(const std::string& language, const std::string& key)
{
    const std::string* text = find_text(language, key);
    const bool reported = text != nullptr || !begins_with_letter(key);
    if (!reported && missing_texts_.insert(language + "/" + key).second) {
        log_line(LogLevel::Info, "language", "no text for '" + key + "' in " + language);
    }
    return text;
}

double Camera::seconds() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

std::unique_ptr<tinyxml2::XMLDocument> Camera::read_page(const std::filesystem::path& path) const
{
    const std::filesystem::path own = pages_ / path.filename();
    if (!pages_.empty() && std::filesystem::exists(own)) {
        return load_page_document(own);
    }
    const auto kept = kept_pages_.find(page_name(path));
    if (kept != kept_pages_.end()) {
        return parse_page_document(kept->second);
    }
    const std::filesystem::path folder = page_folder(resources_);
    return load_page_document(std::filesystem::is_directory(folder) ? folder / path.filename() : path);
}

bool Camera::keep_page(const std::string& name, const std::string& text)
{
    std::string& kept = kept_pages_[name];
    return std::exchange(kept, text) != text;
}

const std::string* Camera::find_text(const std::string& language, const std::string& key) const
{
    const auto texts = texts_.find(language);
    if (texts == texts_.end()) {
        return nullptr;
    }
    const auto text = texts->second.find(key);
    return text == texts->second.end() ? nullptr : &text->second.text;
}

bool Camera::replace_texts(const std::string& language, pages::Texts texts)
{
    pages::Texts& present = texts_[language];
    const bool same =
        std::equal(present.begin(), present.end(), texts.begin(), texts.end(), [](const auto& one, const auto& other) {
            return one.first == other.first && one.second.text == other.second.text;
        });
    present = std::move(texts);
    return !same;
}

std::unique_ptr<tinyxml2::XMLDocument> Camera::open_page(const std::filesystem::path& path)
{
    auto document = read_page(path);
    if (document != nullptr) {
        events_.tell({"page", page_name(path)});
    }
    return document;
}

bool Camera::restart_if_asked()
{
    if (!std::exchange(restart_asked_, false)) {
        return false;
    }
    const std::lock_guard<std::mutex> lock(look_mutex_);
    picture_start_ = seconds();
    mounting_ = look_of(settings_).mounting;
    return true;
}

bool Camera::push_canvas(bool show, const tagOSD_MENU_CANVAS_S& canvas, std::optional<int> channel)
{
    const char* problem = show ? canvas_problem(canvas, memory_.size_at(canvas.stMem.pvVirAddr)) : nullptr;
    if (problem != nullptr) {
        log_line(LogLevel::Error, "media", std::string("a canvas is not shown: ") + problem);
        return false;
    }
    const auto layer = show ? std::make_shared<const Layer>(copy_canvas(canvas)) : nullptr;
    for (int i = channel.value_or(0); i < channel.value_or(channel_count - 1) + 1; ++i) {
        if (show) {
            channels_.show(i, &canvas, layer, canvas.u8CanvasAttr == menu_canvas);
        } else {
            channels_.hide(i, &canvas);
        }
    }
    if (!channel) {
        events_.tell({show ? "show" : "hide", ""});
    }
    return true;
}

void Camera::attach(int channel)
{
    if (menu_refresh_ != nullptr && started_channels_.insert(channel).second) {
        OSD_ATTACH_INFO_S which{channel};
        (void)menu_refresh_(1, &which); // without the menu the channel still has its picture
    }
}

Camera::Moment Camera::present_moment() const
{
    const std::lock_guard<std::mutex> lock(look_mutex_);
    Moment moment{look_of(settings_), still_ ? 0.0 : seconds() - picture_start_};
    moment.look.mounting = mounting_;
    moment.look.clouds = clouds_;
    return moment;
}

Image Camera::draw(int channel)
{
    const Moment moment = present_moment();
    Image picture = draw_picture(channels_.size(channel), moment.look, moment.seconds);
    channels_.lay_canvases_over(channel, picture);
    return picture;
}

Image Camera::look_at(int channel)
{
    attach(channel);
    return draw(channel);
}

void Camera::resize(bool uhd) { channels_.resize_main(uhd ? ultra_hd : full_hd); }

void Camera::replace_definitions(Definitions definitions)
{
    Settings::Values changed;
    {
        const std::lock_guard<std::mutex> lock(look_mutex_); // no look may be made of the new settings and old values
        definitions_ = std::move(definitions);
        changed = settings_.follow_definitions();
    }
    settings_.tell(changed);
    events_.tell({"definitions", ""});
}

} // namespace sim
