#include "tests/fake/page.h"

#include <cstdio>
#include <cstdlib>

#include "tests/fake/calls.h"

namespace fake {

namespace {

void append(list_head* head, list_head* link)
{
    *link = {head, head->prev};
    head->prev->next = link;
    head->prev = link;
}

tagITEM_NODE_S* itemOf(list_head* link)
{
    return reinterpret_cast<tagITEM_NODE_S*>(reinterpret_cast<char*>(link) - offsetof(tagITEM_NODE_S, stNode));
}

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
    append(head, &item->stNode);
    return item;
}

void addText(std::string& out, const char* label, const std::string& text)
{
    out += text.empty() ? "" : std::string(" ") + label + "=" + text;
}

void addNumber(std::string& out, const char* label, int value, int usual = 0)
{
    addText(out, label, value == usual ? "" : std::to_string(value));
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
        const list_head& subItems = item.astSubList[option];
        for (const list_head* link = subItems.next; link != nullptr && link != &subItems; link = link->next) {
            out += "{" + describe(*itemOf(const_cast<list_head*>(link))) + "}";
        }
        out += "]";
    }
    addNumber(out, "cur", item.s32CurIdx);
    addNumber(out, "saved", item.s32SavedIdx);
    return out;
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
    page->stItemList = {&page->stItemList, &page->stItemList};
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
        list_head* head = &item->astSubList[item->s32ValCnt++];
        *head = {head, head};
    }
    item->s32CurIdx = current;
    item->s32SavedIdx = current;
}

void setRange(tagITEM_NODE_S* item, int min, int max, int step, int current)
{
    item->enValType = NUMERICAL;
    item->s32Min = min;
    item->s32Max = max;
    item->s32Step = step;
    item->s32Cur = current;
    item->s32Saved = current;
}

std::string describe(const tagPAGE_NODE_S& page)
{
    std::string out = page.acPageName;
    addNumber(out, "layout", page.enLayout);
    addNumber(out, "perLine", page.s32CountPerLine);
    addText(out, "num", page.stTurn.bCurPagesNum == 1 ? page.stTurn.acCurPagesNum : "");
    addText(out, "next", page.stTurn.bNextPage == 1 ? page.stTurn.acNextPage : "");
    addText(out, "prev", page.stTurn.bPrevPage == 1 ? page.stTurn.acPrevPage : "");
    addText(out, "msg", page.acPageMsg);
    addText(out, "title", page.bTitle == 1 ? std::string(page.acTitleKey) + "|" + page.acTitle : "");
    addNumber(out, "pos", page.enTitlePos);
    addNumber(out, "confirm", page.bConfirmBtn);
    addNumber(out, "rdOnly", page.bRdOnly);
    addNumber(out, "items", page.s32ItemCnt);
    return out;
}

std::string describe(const tagITEM_NODE_S& item)
{
    std::string out = std::string(item.acItemIndex) + "|" + item.acItemName;
    addText(out, "ctx", std::to_string(item.enCtx));
    addText(out, "attr", std::to_string(item.enAttr));
    addNumber(out, "type", item.enValType, OPTTXT);
    addNumber(out, "pic", item.enPicType, PIC_TYPE_NONE);
    addNumber(out, "level", item.enLevel);
    addNumber(out, "active", item.bActive);
    addNumber(out, "sub", item.bSubItem);
    addNumber(out, "count", item.s32ItemCnt, 1);
    addNumber(out, "index", item.s32ItemIndexOnLine);
    addText(out, "icon", item.acPic);
    addText(out, "selected", item.acSelectPic);
    addNumber(out, "chars", item.s32NumOfChar);
    addNumber(out, "pos", item.enItemPos);
    addNumber(out, "line", item.bLine);
    addText(out, "zone", item.acDataZone);
    addText(out, "msg", item.acMsgKey[0] != 0 ? std::string(item.acMsgKey) + "|" + item.acMsg : "");
    addText(out, "opens", item.acSubPage);
    addText(out, "asks", item.acConfirmPage);
    addNumber(out, "live", item.bShowValue);
    return out + describeValue(item);
}

std::vector<std::string> itemNames(const tagPAGE_NODE_S* page)
{
    std::vector<std::string> names;
    for (list_head* link = page->stItemList.next; link != &page->stItemList; link = link->next) {
        names.emplace_back(itemOf(link)->acItemIndex);
    }
    return names;
}

tagITEM_NODE_S* itemAt(const list_head& list, int index)
{
    list_head* link = list.next;
    while (index-- > 0 && link != &list) {
        link = link->next;
    }
    return link == &list ? nullptr : itemOf(link);
}

} // namespace fake
