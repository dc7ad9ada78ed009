// Page stack, flattened lists, selection, release.
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "tests/core/page_text.h"

using namespace fake;

class RecordsTest : public PageTest {
protected:
    // An item of three options (without sub-items; "b1" with "deep" below it and "b2"; "c1") and one behind it.
    tagITEM_NODE_S* openTree()
    {
        const std::string b1 = item("b1 NAME SUBITEM", "<O ModeIndex='X'>" + item("deep NAME COMMON") + "</O>");
        const std::string b = "<O ModeIndex='B'>" + b1 + item("b2 NAME COMMON") + "</O>";
        const std::string c = "<O ModeIndex='C'>" + item("c1 NAME COMMON") + "</O>";
        return opened(item("Mode NAME SUBITEM", "<O ModeIndex='A'/>" + b + c) + item("Last NAME COMMON"));
    }

    // The keys of the flattened list, with a mark before those of an item without sub-items.
    static std::string flatten(tagITEM_NODE_S* item)
    {
        list_head head = {&head, &head};
        EXPECT_EQ(osdMenuInsertItems2TmpList(item, &head), 0);
        std::string names = osdMenuHasSubItem(item) == 0 ? "leaf" : "";
        for (const tagITEM_NODE_S* entry : osdFlatItems(&head)) {
            names += std::string(" ") + entry->acItemIndex;
        }
        return names;
    }
};

TEST_F(RecordsTest, FlattenedListShowsTheOptionInForce)
{
    tagITEM_NODE_S* tree = openTree();
    const std::tuple<tagITEM_ATTR_E, int, int, const char*> cases[] = {
        // options 3, 40 and -1 don't exist
        {SUBITEM, 0, 1, "leaf Mode"},  {SUBITEM, 1, 2, " Mode b1 deep b2"},
        {SUBITEM, 3, 1, "leaf Mode"},  {MSG_WITH_SUBITEM, 2, 1, " Mode b1 deep b2"},
        {SUBITEM, -1, 1, "leaf Mode"}, {MSG_WITH_SUBITEM, 0, 1, "leaf Mode"},
        {COMMON, 1, 1, "leaf Mode"},   {MSG_WITH_SUBITEM, 1, 40, " Mode"}};
    for (const auto& [attr, current, saved, names] : cases) {
        tree->enAttr = attr;
        tree->s32CurIdx = current;
        tree->s32SavedIdx = saved;
        EXPECT_EQ(flatten(tree), names) << attr << " " << current << " " << saved;
    }
}

TEST_F(RecordsTest, SelectedItem)
{
    tagITEM_NODE_S* tree = openTree();
    tagPAGE_NODE_S* page = osdXmlGetCurPage();
    tagITEM_NODE_S* b1 = itemAt(tree->astSubList[1], 0);
    itemAt(tree->astSubList[2], 0)->bActive = 1; // under another option
    tree->s32CurIdx = 1;
    tree->bActive = 0;
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
    itemAt(b1->astSubList[0], 0)->bActive = 1; // two levels down
    EXPECT_EQ(osdMenuGetSelectedItem(page), itemAt(b1->astSubList[0], 0));
    EXPECT_EQ(osdMenuIsSubItemSelected(tree), 0);
    EXPECT_EQ(osdMenuIsSubItemSelected(b1), 1);
    page->enLayout = PAGE_LAYOUT_ICON; // here the position names it
    page->s32SelIdx = 1;
    EXPECT_EQ(osdMenuGetSelectedItem(page), itemAt(page->stItemList, 1));
    page->s32SelIdx = 2;
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
}

TEST_F(RecordsTest, StackGivesAndReleasesTheTopPage)
{
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    openTree();
    addItem(addPage(PAGE_LAYOUT_VERTICAL, "Title"), "Gain", NAME, COMMON);
    EXPECT_EQ(osdXmlGetCurPage(), &gstPageMgr.astPage[1]);
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    EXPECT_EQ(describe(gstPageMgr.astPage[1]), "");
    EXPECT_EQ(osdXmlGetCurPage(), &gstPageMgr.astPage[0]);
}
