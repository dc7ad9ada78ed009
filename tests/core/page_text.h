// What the library makes of a page file, in the words of the file: only what differs from an empty record.
#pragma once

#include "osd_page.h"
#include "tests/fake/menu_test.h"

namespace fake {

template <typename Value>
std::string part(const char* name, const Value& value, const Value& usual)
{
    if constexpr (std::is_same_v<Value, std::string>) {
        return value == usual ? "" : std::string(" ") + name + "=" + value;
    } else {
        return value == usual ? "" : std::string(" ") + name + "=" + std::to_string(value);
    }
}
inline std::string part(const char* name, const char* value) { return part<std::string>(name, value, ""); }
inline std::string part(const char* name, int value) { return part<int>(name, value, 0); }

// "> t.Gain (Gain) NAME_VAL COMMON [Auto t.Auto] [Low t.Low] = t.Low, was t.Auto", with sub-items behind their option.
inline std::string describe(const tagITEM_NODE_S& item)
{
    static const char* const contexts[] = {"ICON",     "ICON_TXT",    "NAME",         "NAME_BAR_VAL",
                                           "NAME_VAL", "NAME_IP_VAL", "ICON_TXT_KETH"};
    static const char* const attributes[] = {"CONST_TXT", "STATUS",  "KEY_WITH_MSG", "COMMON",
                                             "EDITABLE",  "CONFIRM", "CONFIRM_POP",  "CONFIRM_POP_BTN",
                                             "SUBITEM",   "SUBPAGE", "MSG_LINE",     "MSG_WITH_SUBITEM"};
    static const char* const types[] = {"NUMERICAL", "", "EDITTXT"};
    static const char* const pictures[] = {"MAINTYPE", "SUBTYPE", "IPTYPE", "CONFIRMTYPE", ""};
    static const char* const places[] = {"", "Right", "Center"};
    std::string text = format("%s%s (%s) %s %s", item.bActive == 1 ? "> " : "", item.acItemName, item.acItemIndex,
                              contexts[item.enCtx], attributes[item.enAttr]);
    text += part("ValType", types[item.enValType]) + part("PicType", pictures[item.enPicType]) +
            part("level", item.enLevel) + part("sub", item.bSubItem) + part<int>("ItemCnt", item.s32ItemCnt, 1) +
            part("ItemIndexOnLine", item.s32ItemIndexOnLine) + part("Pic", item.acPic) +
            part("SelectPic", item.acSelectPic) + part("NumOfChar", item.s32NumOfChar) +
            part("ItemPos", places[item.enItemPos]) + part("Line", item.bLine) + part("DataZone", item.acDataZone) +
            part("Msg", item.acMsgKey) + part("reads", item.acMsg) + part("SubPage", item.acSubPage) +
            part("ConfirmPage", item.acConfirmPage) + part("ShowValue", item.bShowValue);
    for (int option = 0; item.enValType != NUMERICAL && item.enAttr != EDITABLE && option < item.s32ValCnt; option++) {
        text += squeezed(format("[%s %s", item.acValueKey[option], item.acValue[option])).insert(0, " ");
        for (int at = 0; const tagITEM_NODE_S* sub = itemAt(item.astSubList[option], at); at++) {
            text += ": " + describe(*sub);
        }
        text += "]";
    }
    const bool number = item.enValType == NUMERICAL;
    const bool valued = number || item.s32ValCnt > 0 || item.enAttr == EDITABLE;
    return text + (valued ? " = " + valueOf(item) : "") + (number ? format(" by %d", item.s32Step) : "");
}

inline std::string describe(const tagPAGE_NODE_S& page)
{
    static const char* const layouts[] = {"icon",
                                          "vertical_align",
                                          "horizontal_align",
                                          "vertical_tolvane_align",
                                          "vertical_align_keth",
                                          "horizontal_align_keth"};
    static const char* const places[] = {"Left", "Right", "Center"};
    const tagPAGE_TURN_S& turn = page.stTurn;
    return std::string(page.acPageName) + " " + layouts[page.enLayout] + part("CountPerLine", page.s32CountPerLine) +
           part("CurPagesNum", turn.bCurPagesNum == 1 ? turn.acCurPagesNum : "") +
           part("NextPage", turn.bNextPage == 1 ? turn.acNextPage : "") +
           part("PrevPage", turn.bPrevPage == 1 ? turn.acPrevPage : "") + part("Msg", page.acPageMsg) +
           (page.bTitle == 1 ? format(" Title=%s (%s) %s", page.acTitle, page.acTitleKey, places[page.enTitlePos])
                             : "") +
           part("ConfirmBtn", page.bConfirmBtn) + part("RdOnly", page.bRdOnly) + part("items", page.s32ItemCnt);
}

class PageTest : public MenuTest {
protected:
    // Opens a page of these items, completed with the usual words, and gives the first one.
    tagITEM_NODE_S* opened(const std::string& items)
    {
        setPage("p", items);
        return itemAt(open("p", platform().pages["p"])->stItemList, 0);
    }

    // The page and its items, or "fails", of a file as it stands; nothing stays open.
    std::string parsed(const std::string& items, const std::string& attributes = "Layout='vertical_align'")
    {
        platform().pages["p"] = "<Page " + attributes + ">" + items + "</Page>";
        char name[] = "p";
        const tagPAGE_NODE_S& record = gstPageMgr.astPage[0];
        gstPageMgr.s32PageCnt = 1;
        const int result = OSD_MENU_ParseXml(name, &gstPageMgr.astPage[0]);
        std::string text = result == 0 ? describe(record) : "fails";
        for (int at = 0; result == 0 && itemAt(record.stItemList, at) != nullptr; at++) {
            text += "; " + describe(*itemAt(record.stItemList, at));
        }
        stop();
        return text;
    }
};

} // namespace fake
