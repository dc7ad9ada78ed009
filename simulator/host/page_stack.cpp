#include "simulator/host/page_stack.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "osd_page.h"

namespace sim {
namespace {

struct OpenPage {
    std::string name;
    std::string selected; ///< key of the item with the cursor
};

std::vector<tagITEM_NODE_S*> items_of(list_head& head, std::size_t place)
{
    std::vector<tagITEM_NODE_S*> items;
    for (list_head* link = head.next; link != nullptr && link != &head; link = link->next) {
        items.push_back(item_of(link, place));
    }
    return items;
}

std::vector<tagPAGE_NODE_S*> open_pages()
{
    std::vector<tagPAGE_NODE_S*> pages;
    for (int i = 0; i < std::min<int>(gstPageMgr.s32PageCnt, OSD_PAGE_MAX); ++i) {
        pages.push_back(&gstPageMgr.astPage[i]);
    }
    return pages;
}

std::vector<OpenPage> remember_pages()
{
    std::vector<OpenPage> remembered;
    for (tagPAGE_NODE_S* page : open_pages()) {
        const tagITEM_NODE_S* selected = osdMenuGetSelectedItem(page);
        remembered.push_back({page->acPageName, selected == nullptr ? "" : selected->acItemIndex});
    }
    return remembered;
}

void select_icon(tagPAGE_NODE_S& page, const std::string& key)
{
    const auto items = items_of(page.stItemList, offsetof(tagITEM_NODE_S, stNode));
    const auto found =
        std::find_if(items.begin(), items.end(), [&key](const auto* item) { return key == item->acItemIndex; });
    if (found != items.end()) {
        page.s32SelIdx = static_cast<int>(found - items.begin());
    }
}

void select_row(tagPAGE_NODE_S& page, const std::string& key)
{
    const auto items = visible_items(page);
    const auto found =
        std::find_if(items.begin(), items.end(), [&key](const auto* item) { return key == item->acItemIndex; });
    if (found != items.end()) {
        for (tagITEM_NODE_S* item : items) {
            item->bActive = item == *found ? 1 : 0;
        }
    }
}

} // namespace

std::vector<tagITEM_NODE_S*> visible_items(tagPAGE_NODE_S& page)
{
    list_head shown{&shown, &shown};
    for (tagITEM_NODE_S* item : items_of(page.stItemList, offsetof(tagITEM_NODE_S, stNode))) {
        osdMenuInsertItems2TmpList(item, &shown);
    }
    return items_of(shown, offsetof(tagITEM_NODE_S, stTmpNode));
}

std::vector<std::string> open_page_names()
{
    std::vector<std::string> names;
    for (const tagPAGE_NODE_S* page : open_pages()) {
        names.emplace_back(page->acPageName);
    }
    return names;
}

bool push_page(const std::string& name)
{
    if (gstPageMgr.s32PageCnt < 0 || gstPageMgr.s32PageCnt >= OSD_PAGE_MAX) {
        return false;
    }
    std::array<char, OSD_TEXT_LEN> text{};
    std::snprintf(text.data(), text.size(), "%s", name.c_str());
    tagPAGE_NODE_S* page = &gstPageMgr.astPage[gstPageMgr.s32PageCnt];
    const bool complete = OSD_MENU_ParseXml(text.data(), page) == 0;
    gstPageMgr.s32PageCnt++;
    return complete;
}

void reopen_pages()
{
    const std::vector<OpenPage> pages = remember_pages();
    if (pages.empty()) {
        return;
    }
    while (gstPageMgr.s32PageCnt > 0) {
        osdMenuReleaseSinglePage();
    }
    for (const OpenPage& remembered : pages) {
        tagPAGE_NODE_S& page = gstPageMgr.astPage[gstPageMgr.s32PageCnt];
        (void)push_page(remembered.name); // the log tells of a mistake
        // A page that can't be read now may be read at the next time, under its name.
        std::snprintf(page.acPageName, sizeof page.acPageName, "%s", remembered.name.c_str());
        page.enLayout == PAGE_LAYOUT_ICON ? select_icon(page, remembered.selected)
                                          : select_row(page, remembered.selected);
    }
    OSD_MENU_RenderCanvas();
}

} // namespace sim
