#include "simulator/host/menu_state.h"

#include <algorithm>
#include <array>

#include "osd_menu.h"
#include "simulator/camera/camera.h"
#include "simulator/host/page_stack.h"

namespace sim {
namespace {

/// By tagPAGE_LAYOUT_E, in the words of page files.
constexpr std::array<const char*, 6> layout_names = {"icon",
                                                     "vertical_align",
                                                     "horizontal_align",
                                                     "vertical_tolvane_align",
                                                     "vertical_align_keth",
                                                     "horizontal_align_keth"};

/// What a field of a record holds, with or without a zero at its end.
template <std::size_t N>
std::string text_of_field(const char (&field)[N])
{
    return {field, std::find(field, field + N, '\0')};
}

bool shows_value(const tagITEM_NODE_S& item)
{
    return item.enCtx == NAME_VAL || item.enCtx == NAME_BAR_VAL || item.enCtx == NAME_IP_VAL;
}

/// A value that the menu reads anew at each draw: the setting's own. An address is shown as it is, all else translated.
std::string live_value(Camera& camera, const tagITEM_NODE_S& item)
{
    const std::string key = text_of_field(item.acItemIndex);
    const Setting* setting = camera.settings.find_key(key);
    const std::string value = setting == nullptr ? "" : camera.settings.value(setting->id);
    const std::string* text = camera.texts.find(camera.language(), value);
    return key == "IpAddr" ? value : text == nullptr ? "" : *text;
}

std::string value_text(Camera& camera, const tagITEM_NODE_S& item)
{
    if (!shows_value(item)) {
        return "";
    }
    if (item.enValType == EDITTXT) { // as it was edited, also before it is confirmed
        return text_of_field(item.acValue[1]);
    }
    if (item.enAttr == STATUS) {
        return text_of_field(item.acValue[0]);
    }
    if (item.enValType == NUMERICAL) {
        return std::to_string(item.s32Cur);
    }
    if (item.bShowValue == 1) {
        return live_value(camera, item);
    }
    const bool in_range = item.s32CurIdx >= 0 && item.s32CurIdx < OSD_OPTION_MAX;
    return in_range ? text_of_field(item.acValue[item.s32CurIdx]) : "";
}

std::vector<ItemState> items_of(Camera& camera, tagPAGE_NODE_S& page)
{
    const bool icons = page.enLayout == PAGE_LAYOUT_ICON; // such a page knows its selected item by the place
    std::vector<ItemState> states;
    for (const tagITEM_NODE_S* item : visible_items(page)) {
        const bool selected = icons ? page.s32SelIdx == static_cast<int>(states.size()) : item->bActive == 1;
        states.push_back({text_of_field(item->acItemIndex), text_of_field(item->acItemName), value_text(camera, *item),
                          selected, item->bEditing == 1});
    }
    return states;
}

PageState state_of(Camera& camera, tagPAGE_NODE_S& page)
{
    PageState state;
    state.name = text_of_field(page.acPageName);
    state.title = page.bTitle == 1 ? text_of_field(page.acTitle) : "";
    const auto layout = static_cast<std::size_t>(page.enLayout);
    state.layout = layout < layout_names.size() ? layout_names[layout] : "";
    state.message = page.bKeyMsg == 1 ? text_of_field(page.acKeyMsg) : text_of_field(page.acPageMsg);
    state.items = items_of(camera, page);
    return state;
}

} // namespace

std::vector<PageState> menu_state(Camera& camera)
{
    std::vector<PageState> pages;
    const int count = std::clamp<int>(gstPageMgr.s32PageCnt, 0, OSD_PAGE_MAX);
    for (int i = 0; i < count; ++i) {
        pages.push_back(state_of(camera, gstPageMgr.astPage[i]));
    }
    return pages;
}

const ItemState* selected_item(const PageState& page)
{
    const auto found =
        std::find_if(page.items.begin(), page.items.end(), [](const ItemState& item) { return item.selected; });
    return found == page.items.end() ? nullptr : &*found;
}

} // namespace sim
