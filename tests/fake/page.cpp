#include "tests/fake/page.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <sstream>
#include <tinyxml2.h>

#include "osd_page.h"
#include "tests/fake/calls.h"
#include "tests/fake/platform.h"

namespace fake {

// The words that an item or option leaves out: those of the first row that fits an attribute, then of the next one.
static void complete(tinyxml2::XMLElement* element)
{
    static const struct {
        const char *attribute, *value, *missing, *word;
    } usual[] = {{nullptr, nullptr, "Attr", "COMMON"},
                 {"Attr", "CONST_TXT", "Ctx", "NAME"},
                 {"Attr", "SUBPAGE", "Ctx", "NAME"},
                 {"Attr", "CONFIRM", "Ctx", "NAME"},
                 {"Attr", "CONFIRM_POP_BTN", "Ctx", "NAME"},
                 {"Attr", "CONFIRM_POP_BTN", "ConfirmPage", "confirm"},
                 {"Attr", "CONFIRM_POP", "ConfirmPage", "confirm"},
                 {"Attr", "EDITABLE", "Ctx", "NAME_IP_VAL"},
                 {"Attr", "EDITABLE", "ValType", "EDITTXT"},
                 {"Attr", "EDITABLE", "NumOfChar", "15"},
                 {"Attr", "KEY_WITH_MSG", "Msg", "Press"},
                 {"Attr", "MSG_WITH_SUBITEM", "Msg", "Press"},
                 {"ValType", "NUMERICAL", "Ctx", "NAME_BAR_VAL"},
                 {nullptr, nullptr, "Ctx", "NAME_VAL"},
                 {nullptr, nullptr, "Value", "Go"}};
    for (const auto& row : usual) {
        const bool fits = row.attribute == nullptr || element->Attribute(row.attribute, row.value) != nullptr;
        if (element->Attribute("ItemIndex") != nullptr && fits && element->Attribute(row.missing) == nullptr) {
            element->SetAttribute(row.missing, row.word);
        }
    }
    for (auto* child = element->FirstChildElement(); child != nullptr; child = child->NextSiblingElement()) {
        complete(child);
    }
}

void setPage(const std::string& name, const std::string& items, const std::string& attributes)
{
    tinyxml2::XMLDocument document;
    (void)document.Parse(("<Page " + attributes + ">" + items + "</Page>").c_str());
    tinyxml2::XMLElement* root = document.RootElement();
    if (root == nullptr) {
        throw std::invalid_argument(name + ": " + document.ErrorStr());
    }
    if (root->Attribute("Layout") == nullptr) {
        root->SetAttribute("Layout", "vertical_align");
    }
    complete(root);
    tinyxml2::XMLPrinter printer;
    document.Print(&printer);
    platform().pages[name] = printer.CStr();
}

void setPages(const std::string& text)
{
    std::vector<std::vector<std::string>> pages; // name, attributes, items
    for (const std::string& line : linesIn(text)) {
        const std::vector<std::string> head = matched(line, R"((\w+)([^<]*):(.*))");
        head.empty() ? pages.back().at(2).append(line) : pages.emplace_back(head).back();
    }
    for (const std::vector<std::string>& page : pages) {
        setPage(page[0], page[2], page[1]);
    }
}

tagITEM_NODE_S* itemAt(const list_head& list, int index)
{
    const list_head* at = list.next; // null where there is no list
    for (; at != &list && at != nullptr && index > 0; index--) {
        at = at->next;
    }
    if (at == &list || at == nullptr) {
        return nullptr;
    }
    const char* item = reinterpret_cast<const char*>(at) - offsetof(tagITEM_NODE_S, stNode);
    return reinterpret_cast<tagITEM_NODE_S*>(const_cast<char*>(item));
}

std::vector<tagITEM_NODE_S*> itemsOf(tagPAGE_NODE_S& page)
{
    list_head head = {&head, &head};
    for (int index = 0; itemAt(page.stItemList, index) != nullptr; index++) {
        (void)osdMenuInsertItems2TmpList(itemAt(page.stItemList, index), &head);
    }
    std::vector<tagITEM_NODE_S*> items;
    for (list_head* at = head.next; at != &head; at = at->next) {
        char* item = reinterpret_cast<char*>(at) - offsetof(tagITEM_NODE_S, stTmpNode);
        items.push_back(reinterpret_cast<tagITEM_NODE_S*>(item));
    }
    return items;
}

tagITEM_NODE_S& itemOf(const std::string& key, int page)
{
    const auto items = itemsOf(gstPageMgr.astPage[page]);
    return **std::find_if(items.begin(), items.end(), [&](auto* item) { return key == item->acItemIndex; });
}

void setField(char (&field)[OSD_TEXT_LEN], const std::string& text)
{
    snprintf(field, sizeof field, "%s", text.c_str());
}

static std::string optionOf(const tagITEM_NODE_S& item, int index)
{
    const bool shown = index == 0 || (index > 0 && index < item.s32ValCnt);
    return shown ? item.acValue[index] : format("option %d", index);
}

static std::string addressOf(const tagITEM_NODE_S& item)
{
    std::string text = item.acValue[1];
    const auto cursor = static_cast<size_t>(item.s32EditCursor);
    if (item.bEditing == 1 && cursor < text.size()) {
        text.replace(cursor, 1, std::string("[") + text[cursor] + "]");
    } else if (item.bEditing == 1 || cursor != 0) {
        text += format(", cursor at %d", item.s32EditCursor);
    }
    return text + (strcmp(item.acValue[0], item.acValue[1]) == 0 ? "" : std::string(", was ") + item.acValue[0]);
}

std::string valueOf(const tagITEM_NODE_S& item)
{
    if (item.enValType == NUMERICAL) {
        const std::string was = item.s32Cur == item.s32Saved ? "" : format(", was %d", item.s32Saved);
        return format("%d of %d..%d", item.s32Cur, item.s32Min, item.s32Max) + was;
    }
    if (item.enAttr == EDITABLE) {
        return addressOf(item);
    }
    const std::string now = optionOf(item, item.s32CurIdx);
    const std::string saved = optionOf(item, item.s32SavedIdx);
    return item.s32CurIdx == item.s32SavedIdx
               ? now
               : (now.empty() ? "none" : now) + ", was " + (saved.empty() ? "none" : saved);
}

static std::string rowOf(const tagITEM_NODE_S& item, int below, bool selected)
{
    const std::string value = valueOf(item);
    return (selected ? "> " : "  ") + std::string(2 * static_cast<size_t>(below), ' ') + item.acItemName +
           (value.empty() ? "" : "  " + value);
}

std::vector<std::string> screen()
{
    std::string path = gstPageMgr.s32PageCnt > 0 ? "" : "closed";
    std::vector<std::string> rows;
    for (int at = 0; at < gstPageMgr.s32PageCnt; at++) {
        tagPAGE_NODE_S& page = gstPageMgr.astPage[at];
        const tagITEM_NODE_S* selected = osdMenuGetSelectedItem(&page);
        path += (at == 0 ? "" : " / ") + std::string(*page.acPageName == '\0' ? "unread" : page.acPageName);
        if (at + 1 < gstPageMgr.s32PageCnt) {
            path += " at " + (selected == nullptr ? "nothing" : squeezed(rowOf(*selected, 0, false)));
            continue;
        }
        for (const tagITEM_NODE_S* item : itemsOf(page)) {
            const bool cursor = page.enLayout == PAGE_LAYOUT_ICON ? item == selected : item->bActive == 1;
            rows.push_back(rowOf(*item, item->enLevel - (page.bTitle == 1 ? 1 : 0), cursor));
        }
        if (page.bKeyMsg == 1) {
            rows.insert(rows.end(), {"---", page.acKeyMsg});
        }
    }
    rows.insert(rows.begin(), path);
    return rows;
}

std::string squeezed(const std::string& line)
{
    const size_t first = line.find_first_not_of(' ');
    return first == std::string::npos ? "" : replaced(replaced(line.substr(first), " +$", ""), "  +", " ");
}

std::vector<std::string> linesIn(const std::string& text)
{
    std::istringstream in(text);
    std::vector<std::string> lines;
    size_t margin = std::string::npos;
    for (std::string line; std::getline(in, line);) {
        const size_t first = line.find_first_not_of(' ');
        if (first != std::string::npos) {
            margin = std::min(margin, first);
            lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
        }
    }
    for (std::string& line : lines) {
        line.erase(0, margin);
    }
    return lines;
}

std::vector<std::vector<std::string>> tableIn(const std::string& text)
{
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : linesIn(replaced(replaced(text, R"(([,;])\n *\|)", "$1"), R"(\n *\|)", " |"))) {
        std::istringstream in(line + " "); // the last cell may be empty
        rows.emplace_back();
        for (std::string cell; std::getline(in, cell, '|');) {
            rows.back().push_back(squeezed(cell));
        }
    }
    return rows;
}

std::string joined(const std::vector<std::string>& parts, const std::string& between)
{
    std::string all;
    for (size_t at = 0; at < parts.size(); at++) {
        all += (at == 0 ? "" : between) + parts[at];
    }
    return all;
}

} // namespace fake
