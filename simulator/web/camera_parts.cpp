#include "simulator/web/camera_parts.h"

#include "simulator/base/page_files.h"
#include "simulator/host/menu_state.h"

namespace sim {
namespace {

using nlohmann::json;

json languages_json(const Camera& camera)
{
    json names = json::array();
    for (const auto& [option, name] : camera.definitions().languages) {
        names.push_back(name);
    }
    return names;
}

json page_json(const PageState& page)
{
    json items = json::array();
    for (const ItemState& item : page.items) {
        items.push_back({{"key", item.key},
                         {"label", item.label},
                         {"value", item.value},
                         {"selected", item.selected},
                         {"editing", item.editing}});
    }
    return {{"name", page.name},
            {"title", page.title},
            {"layout", page.layout},
            {"message", page.message},
            {"items", std::move(items)}};
}

json focus_json(const std::vector<PageState>& pages)
{
    if (pages.empty()) {
        return nullptr;
    }
    const PageState& top = pages.back();
    const ItemState* item = selected_item(top);
    return {{"page", top.name},
            {"title", top.title},
            {"message", top.message},
            {"label", item == nullptr ? "" : item->label},
            {"value", item == nullptr ? "" : item->value}};
}

json problems_json(const LiveReload& reload)
{
    json problems = json::array();
    for (const Finding& finding : reload.problems()) {
        problems.push_back({{"file", finding.place.file},
                            {"line", finding.place.line},
                            {"column", finding.place.column},
                            {"severity", name_of(finding.severity)},
                            {"rule", finding.rule},
                            {"reason", words_of(finding)}});
    }
    return problems;
}

/// What a browser calls a key of the keyboard.
std::string browser_name(SDL_Keycode code)
{
    switch (code) {
    case SDLK_UP:
    case SDLK_DOWN:
    case SDLK_LEFT:
    case SDLK_RIGHT:
        return std::string("Arrow") + SDL_GetKeyName(code);
    case SDLK_RETURN:
        return "Enter";
    default: // what has a character is called by it
        return code >= SDLK_SPACE && code <= SDLK_z ? std::string(1, static_cast<char>(code)) : SDL_GetKeyName(code);
    }
}

json keyboard_json(const Key& key)
{
    json names = json::array();
    if (key.keyboard != SDLK_UNKNOWN) {
        names.push_back(browser_name(key.keyboard));
    }
    if (std::string(key.name) == escape_key) {
        names.push_back(browser_name(SDLK_ESCAPE));
    }
    return names;
}

} // namespace

json channels_json(Camera& camera)
{
    json channels = json::array();
    for (int i = 0; i < channel_count; ++i) {
        const Size size = camera.video.channels.size(i);
        channels.push_back(
            {{"name", channel_names.at(static_cast<std::size_t>(i))}, {"width", size.width}, {"height", size.height}});
    }
    return channels;
}

json state_json(const CameraParts& parts)
{
    const std::vector<PageState> pages = menu_state(parts.camera);
    json list = json::array();
    for (const PageState& page : pages) {
        list.push_back(page_json(page));
    }
    const MenuConfig& config = parts.session.config();
    const Key* held = parts.session.held();
    return {{"menu", parts.session.has_menu()},
            {"open", !pages.empty()},
            {"held", held == nullptr ? json() : json(held->name)},
            {"language", parts.camera.language()},
            {"languages", languages_json(parts.camera)},
            {"style", config.style},
            {"styles", style_count},
            {"sizes", size_names},
            {"size", size_name(config.uhd)},
            {"channels", channels_json(parts.camera)},
            {"pages", std::move(list)},
            {"all_pages", page_names(parts.camera.resources)},
            {"focus", focus_json(pages)},
            {"problems", problems_json(parts.reload)},
            {"faults", parts.camera.faults.names()}};
}

json keys_json()
{
    json list = json::array();
    for (const Key& key : all_keys()) {
        list.push_back({{"name", key.name},
                        {"title", key.title},
                        {"help", key.help},
                        {"keyboard", keyboard_json(key)},
                        {"repeats", key.held == Held::Repeats}});
    }
    return {{"keys", std::move(list)}};
}

json faults_json(const Faults& faults)
{
    json list = json::array();
    for (const FaultRow& row : all_faults()) {
        list.push_back({{"name", row.name}, {"help", row.help}, {"on", faults.is_on(row.fault)}});
    }
    return {{"faults", std::move(list)}};
}

} // namespace sim
