#include "tests/fake/page.h"

#include <cstdio>
#include <cstdlib>

#include "menu/core/flat_list.h"
#include "tests/fake/calls.h"

namespace fake {

namespace {

tagITEM_NODE_S* newItem(list_head* head, const std::string& name, tagITEM_CTX_E ctx, tagITEM_ATTR_E attr,
                        const std::string& value)
{
    auto* item = static_cast<tagITEM_NODE_S*>(calloc(1, sizeof(tagITEM_NODE_S)));
    setField(item->acItemName, name);
    setField(item->acItemIndex, name);
    setField(item->acValue[0], value);
    item->enCtx = ctx;
    item->enAttr = attr;
    item->enValType = OPTTXT;
    item->enPicType = PIC_TYPE_NONE;
    item->s32ValCnt = value.empty() ? 0 : 1;
    item->s32ItemCnt = 1;
    osdListAddTail(&item->stNode, head);
    return item;
}

std::string text(const char* label, const std::string& value)
{
    return value.empty() ? "" : std::string(" ") + label + "=" + value;
}

std::string number(const char* label, int value, int usual = 0)
{
    return text(label, value == usual ? "" : std::to_string(value));
}

std::string describeValue(const tagITEM_NODE_S& item)
{
    if (item.enValType == NUMERICAL) {
        return format(" %d..%d/%d=%d,%d", item.s32Min, item.s32Max, item.s32Step, item.s32Cur, item.s32Saved);
    }
    if (item.enAttr == EDITABLE) {
        return format(" [%s][%s]", item.acValue[0], item.acValue[1]);
    }
    std::string out = item.s32ValCnt > 0 ? " " : "";
    for (int option = 0; option < item.s32ValCnt; option++) {
        out += format("[%s|%s", item.acValueKey[option], item.acValue[option]);
        for (const tagITEM_NODE_S* sub : osdItems(const_cast<list_head*>(&item.astSubList[option]))) {
            out += "{" + describe(*sub) + "}";
        }
        out += "]";
    }
    return out + number("cur", item.s32CurIdx) + number("saved", item.s32SavedIdx);
}

} // namespace

void setField(char (&field)[OSD_TEXT_LEN], const std::string& text)
{
    snprintf(field, sizeof field, "%s", text.c_str());
}

tagPAGE_NODE_S* addPage(tagPAGE_LAYOUT_E layout, const std::string& title)
{
    tagPAGE_NODE_S* page = &gstPageMgr.astPage[gstPageMgr.s32PageCnt++];
    *page = {};
    page->enLayout = layout;
    page->bTitle = title.empty() ? 0 : 1;
    setField(page->acTitle, title);
    osdListInit(&page->stItemList);
    return page;
}

tagITEM_NODE_S* addItem(tagPAGE_NODE_S* page, const std::string& name, tagITEM_CTX_E ctx, tagITEM_ATTR_E attr,
                        const std::string& value)
{
    tagITEM_NODE_S* item = newItem(&page->stItemList, name, ctx, attr, value);
    item->enLevel = page->bTitle == 1 ? ITEM_LEVEL_UNDER_TITLE : ITEM_LEVEL_TOP;
    page->s32ItemCnt++;
    return item;
}

tagITEM_NODE_S* addSubItem(tagITEM_NODE_S* parent, int option, const std::string& name, tagITEM_CTX_E ctx,
                           tagITEM_ATTR_E attr, const std::string& value)
{
    tagITEM_NODE_S* item = newItem(&parent->astSubList[option], name, ctx, attr, value);
    item->enLevel = static_cast<tagITEM_LEVEL_E>(parent->enLevel + 1);
    item->bSubItem = 1;
    return item;
}

void setOptions(tagITEM_NODE_S* item, std::initializer_list<const char*> options, int current)
{
    item->s32ValCnt = 0;
    for (const char* option : options) {
        setField(item->acValue[item->s32ValCnt], option);
        setField(item->acValueKey[item->s32ValCnt], option);
        osdListInit(&item->astSubList[item->s32ValCnt++]);
    }
    item->s32SavedIdx = item->s32CurIdx = current;
}

void setRange(tagITEM_NODE_S* item, int min, int max, int step, int current)
{
    item->enValType = NUMERICAL;
    item->s32Min = min;
    item->s32Max = max;
    item->s32Step = step;
    item->s32Saved = item->s32Cur = current;
}

std::string describe(const tagPAGE_NODE_S& page)
{
    const tagPAGE_TURN_S& turn = page.stTurn;
    const std::string title = format("%s|%s", page.acTitleKey, page.acTitle);
    return page.acPageName + number("layout", page.enLayout) + number("perLine", page.s32CountPerLine) +
           text("num", turn.bCurPagesNum == 1 ? turn.acCurPagesNum : "") +
           text("next", turn.bNextPage == 1 ? turn.acNextPage : "") +
           text("prev", turn.bPrevPage == 1 ? turn.acPrevPage : "") + text("msg", page.acPageMsg) +
           text("title", page.bTitle == 1 ? title : "") + number("pos", page.enTitlePos) +
           number("confirm", page.bConfirmBtn) + number("rdOnly", page.bRdOnly) + number("items", page.s32ItemCnt);
}

std::string describe(const tagITEM_NODE_S& item)
{
    const std::string message = format("%s|%s", item.acMsgKey, item.acMsg);
    return format("%s|%s ctx=%d attr=%d", item.acItemIndex, item.acItemName, item.enCtx, item.enAttr) +
           number("type", item.enValType, OPTTXT) + number("pic", item.enPicType, PIC_TYPE_NONE) +
           number("level", item.enLevel) + number("active", item.bActive) + number("sub", item.bSubItem) +
           number("count", item.s32ItemCnt, 1) + number("index", item.s32ItemIndexOnLine) + text("icon", item.acPic) +
           text("selected", item.acSelectPic) + number("chars", item.s32NumOfChar) + number("pos", item.enItemPos) +
           number("line", item.bLine) + text("zone", item.acDataZone) + text("msg", message == "|" ? "" : message) +
           text("opens", item.acSubPage) + text("asks", item.acConfirmPage) + number("live", item.bShowValue) +
           describeValue(item);
}

tagITEM_NODE_S* itemAt(const list_head& list, int index)
{
    for (tagITEM_NODE_S* item : osdItems(const_cast<list_head*>(&list))) {
        if (index-- == 0) {
            return item;
        }
    }
    return nullptr;
}

} // namespace fake
