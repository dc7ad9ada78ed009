#include "pages/menu/menu.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "menu/core/flat_list.h"
#include "menu/core/item.h"
#include "menu/core/item_parse.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "osd_menu.h"
#include "osd_page.h"
#include "pages/menu/camera.h"

namespace pages {
namespace {

std::mutex only_one;
constexpr std::uint32_t style_of_most = 1; ///< in which a page's reader looks at the most attributes

std::vector<Fault>* heard_faults = nullptr;
std::unordered_map<const tinyxml2::XMLElement*, const Element*> twins; ///< the author's element of the parser's one

void hear(const tagPAGE_FAULT_S& fault)
{
    if (heard_faults != nullptr) {
        heard_faults->push_back({fault.enFault, twins[fault.pstElem], fault.pcAttr,
                                 fault.pcValue == nullptr ? "" : fault.pcValue, fault.pcValue != nullptr});
    }
}

void find_twins(const tinyxml2::XMLElement* element, const Element& twin)
{
    twins[element] = &twin;
    const tinyxml2::XMLElement* child = element->FirstChildElement();
    for (const auto& twin_child : twin.children) {
        if (child == nullptr) {
            return;
        }
        find_twins(child, *twin_child);
        child = child->NextSiblingElement();
    }
}

/// Each item by itself, and those below an item that is refused: one mistake hides no other.
void parse_items(const std::string& language, const tinyxml2::XMLElement* parent)
{
    for (const tinyxml2::XMLElement* element = parent->FirstChildElement(); element != nullptr;
         element = element->NextSiblingElement()) {
        list_head items{&items, &items};
        if (osdItemParse(language.c_str(), element, {ITEM_LEVEL_TOP, 0, 0}, &items)) {
            osdItemsRelease(&items);
            continue;
        }
        for (const tinyxml2::XMLElement* option = element->FirstChildElement(); option != nullptr;
             option = option->NextSiblingElement()) {
            parse_items(language, option);
        }
    }
}

} // namespace

std::string to_string(const View& view)
{
    return view.language + ", style " + std::to_string(view.style) + ", " + size_name(view.uhd);
}

std::vector<View> all_views(const ResourceFolder& folder)
{
    std::vector<View> views;
    for (const auto& [language, texts] : folder.languages) {
        for (std::uint32_t style = 0; style < style_count; ++style) {
            views.push_back({language, style, false});
            views.push_back({language, style, true});
        }
    }
    return views;
}

Menu::Menu(const ResourceFolder& folder, const View& view) : lock_(only_one)
{
    camera().begin(folder);
    if (TTF_WasInit() == 0 && OSD_MENU_InitOpensourceRes() != 0) {
        throw std::runtime_error("the menu's graphics libraries don't start");
    }
    look(view);
}

Menu::Menu(const ResourceFolder& folder, const std::string& language) : lock_(only_one)
{
    camera().begin(folder);
    camera().set_view({language, style_of_most, false});
}

Menu::~Menu()
{
    close_all();
    camera().end();
}

void Menu::look(const View& view)
{
    close_all();
    const bool restart =
        !camera().is_drawing() || camera().view().style != view.style || camera().view().uhd != view.uhd;
    camera().set_view(view);
    if (!restart) {
        return;
    }
    tagOSD_MENU_CFG_S config{{0.0F, 0.0F, 0.5F, 1.0F}, 2, view.uhd ? 1 : 0, view.style};
    if (OSD_MENU_InitSdkRes(&config, Camera::apply, Camera::parent_of_zone) != 0) {
        throw BadInput("the menu doesn't start, expected font.ttf and bold_font.ttf in " +
                       camera().folder().fonts.string() + ", or another folder with --fonts");
    }
    Osd_GetVersionCallback(Camera::answer, nullptr);
    camera().set_drawing(true);
}

const View& Menu::view() const { return camera().view(); }

void Menu::store(const SettingId& setting, const std::string& value)
{
    const auto found = camera().folder().definitions.settings.find(setting);
    if (found != camera().folder().definitions.settings.end() && problem_with(found->second, value).empty()) {
        camera().store(found->second, value);
    }
}

void Menu::forget_values() { camera().forget_values(); }

std::vector<Fault> Menu::parse(const PageFile& page)
{
    std::vector<Fault> faults;
    tinyxml2::XMLDocument document;
    if (page.root == nullptr || document.Parse(page.text.data(), page.text.size()) != tinyxml2::XML_SUCCESS ||
        document.RootElement() == nullptr) {
        return faults; // what is wrong with the file has been told
    }
    const tinyxml2::XMLElement* root = document.RootElement();
    find_twins(root, *page.root);
    heard_faults = &faults;
    g_pfnPageFault = hear;
    const std::uint32_t style = std::exchange(enMenuStyle, view().style);
    tagPAGE_NODE_S record{};
    (void)osdPageReadAttributes(view().language.c_str(), root, &record, page.name.c_str());
    parse_items(view().language, root);
    enMenuStyle = style;
    g_pfnPageFault = nullptr;
    heard_faults = nullptr;
    twins.clear();
    return faults;
}

bool Menu::open(const std::string& page)
{
    if (gstPageMgr.s32PageCnt >= OSD_PAGE_MAX) {
        return false;
    }
    tagPAGE_NODE_S* record = &gstPageMgr.astPage[gstPageMgr.s32PageCnt];
    const bool whole = osdPageParse(page.c_str(), record);
    gstPageMgr.s32PageCnt++;
    return whole;
}

void Menu::close_all()
{
    while (gstPageMgr.s32PageCnt > 0) {
        osdPagePop();
    }
}

tagPAGE_NODE_S* Menu::top() { return osdPageTop(); }

std::vector<tagITEM_NODE_S*> Menu::rows()
{
    std::vector<tagITEM_NODE_S*> rows;
    if (top() != nullptr) {
        list_head shown;
        osdPageFlatten(top(), &shown);
        for (tagITEM_NODE_S* item : osdFlatItems(&shown)) {
            rows.push_back(item);
        }
    }
    return rows;
}

std::vector<std::string> Menu::open_pages() const
{
    std::vector<std::string> names;
    for (int i = 0; i < osdPageCnt(&gstPageMgr); ++i) {
        names.emplace_back(gstPageMgr.astPage[i].acPageName);
    }
    return names;
}

void Menu::key(int (*function)()) { (void)function(); }

void Menu::press(Key pressed)
{
    static constexpr int (*functions[])() = {
        OSD_MENU_HandleKeyMenu, OSD_MENU_HandleKeyAdvancedMenu, OSD_MENU_HandleKeyUp,   OSD_MENU_HandleKeyDown,
        OSD_MENU_HandleKeyLeft, OSD_MENU_HandleKeyRight,        OSD_MENU_HandleKeyHome, OSD_MENU_ReturnMenu};
    key(functions[static_cast<std::size_t>(pressed)]);
}

void Menu::press_unseen(Key pressed)
{
    SDL_Surface* surface = std::exchange(gstMenuMgr.pstSurface, nullptr); // without it the library draws nothing
    press(pressed);
    gstMenuMgr.pstSurface = surface;
}

SDL_Surface* Menu::draw()
{
    (void)OSD_MENU_RenderCanvas();
    return gstMenuMgr.pstSurface;
}

std::vector<std::string> Menu::take_lines() { return camera().take_lines(); }

} // namespace pages
