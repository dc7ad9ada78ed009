// What the library makes of a page file, in the words of the file: only what differs from an empty record.
#pragma once

#include <sstream>

#include "osd_page.h"
#include "tests/fake/menu_test.h"

namespace fake {

// The word at that place; "-" is none.
inline std::string wordAt(const char* words, int place)
{
    std::istringstream in(words);
    std::string word;
    for (int at = 0; at <= place; at++) {
        in >> word;
    }
    return word == "-" ? "" : word;
}

// " name=value", or nothing for what is empty or 0.
inline std::string part(const std::string& name, const std::string& value)
{
    return value.empty() || value == "0" ? "" : " " + name + "=" + value;
}
inline std::string part(const std::string& name, int value) { return part(name, std::to_string(value)); }

// "> t.Gain (Gain) NAME_VAL COMMON [Auto t.Auto] [Low t.Low] = t.Low, was t.Auto", with sub-items behind their option.
inline std::string describe(const tagITEM_NODE_S& item)
{
    const bool number = item.enValType == NUMERICAL;
    std::string text =
        std::string(item.bActive == 1 ? "> " : "") + item.acItemName + " (" + item.acItemIndex + ") " +
        wordAt("ICON ICON_TXT NAME NAME_BAR_VAL NAME_VAL NAME_IP_VAL ICON_TXT_KETH", item.enCtx) + " " +
        wordAt("CONST_TXT STATUS KEY_WITH_MSG COMMON EDITABLE CONFIRM CONFIRM_POP CONFIRM_POP_BTN SUBITEM SUBPAGE "
               "MSG_LINE MSG_WITH_SUBITEM",
               item.enAttr) +
        part("ValType", wordAt("- - EDITTXT", item.enValType)) +
        part("PicType", wordAt("MAINTYPE SUBTYPE IPTYPE CONFIRMTYPE -", item.enPicType)) + part("level", item.enLevel) +
        part("sub", item.bSubItem) + part("ItemCnt", item.s32ItemCnt == 1 ? 0 : item.s32ItemCnt) +
        part("ItemIndexOnLine", item.s32ItemIndexOnLine) + part("Pic", item.acPic) +
        part("SelectPic", item.acSelectPic) + part("NumOfChar", item.s32NumOfChar) +
        part("ItemPos", wordAt("- Right Center", item.enItemPos)) + part("Line", item.bLine) +
        part("DataZone", item.acDataZone) + part("Msg", item.acMsgKey) + part("reads", item.acMsg) +
        part("SubPage", item.acSubPage) + part("ConfirmPage", item.acConfirmPage) + part("ShowValue", item.bShowValue);
    for (int option = 0; !number && item.enAttr != EDITABLE && option < item.s32ValCnt; option++) {
        text += " " + squeezed(format("[%s %s", item.acValueKey[option], item.acValue[option]));
        for (int at = 0; const tagITEM_NODE_S* sub = itemAt(item.astSubList[option], at); at++) {
            text += ": " + describe(*sub);
        }
        text += "]";
    }
    const bool valued = number || item.s32ValCnt > 0 || item.enAttr == EDITABLE;
    return text + (valued ? " = " + valueOf(item) : "") + (number ? format(" by %d", item.s32Step) : "");
}

inline std::string describe(const tagPAGE_NODE_S& page)
{
    const tagPAGE_TURN_S& turn = page.stTurn;
    const std::string place = wordAt("Left Right Center", page.enTitlePos);
    return std::string(page.acPageName) + " " +
           wordAt("icon vertical_align horizontal_align vertical_tolvane_align vertical_align_keth "
                  "horizontal_align_keth",
                  page.enLayout) +
           part("CountPerLine", page.s32CountPerLine) +
           part("CurPagesNum", turn.bCurPagesNum == 1 ? turn.acCurPagesNum : "") +
           part("NextPage", turn.bNextPage == 1 ? turn.acNextPage : "") +
           part("PrevPage", turn.bPrevPage == 1 ? turn.acPrevPage : "") + part("Msg", page.acPageMsg) +
           (page.bTitle == 1 ? format(" Title=%s (%s) %s", page.acTitle, page.acTitleKey, place.c_str()) : "") +
           part("ConfirmBtn", page.bConfirmBtn) + part("RdOnly", page.bRdOnly) + part("items", page.s32ItemCnt);
}

class PageTest : public MenuTest {
protected:
    // The first item of a page of these.
    tagITEM_NODE_S* opened(const std::string& items) { return itemAt(openPage(items)->stItemList, 0); }

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
