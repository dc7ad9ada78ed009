// Page files as text, and what the library makes of them as text.
#pragma once

#include "tests/fake/menu_test.h"

namespace fake {

inline std::string page(const std::string& children, const std::string& attributes = "Layout='vertical_align'")
{
    return "<Page " + attributes + ">" + children + "</Page>";
}

// An item whose key, context and attribute may stand as plain words in front: "Gain NAME_VAL COMMON DataZone='Cam'".
inline std::string item(const std::string& text, const std::string& options = "")
{
    return "<Item " + replaced(text, R"(^(\w+) (\w+) (\w+)\b)", "ItemIndex='$1' Ctx='$2' Attr='$3'") + ">" + options +
           "</Item>";
}

class PageTest : public MenuTest {
protected:
    // Opens a page of these items and gives the first one.
    tagITEM_NODE_S* opened(const std::string& items) { return itemAt(open("p", page(items))->stItemList, 0); }

    // The page and its items described, or "fails"; nothing stays open.
    std::string parsed(const std::string& document)
    {
        platform().pages["p"] = document;
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
