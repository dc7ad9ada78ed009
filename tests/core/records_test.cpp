// Page stack, flattened lists, selection, release.
#include "tests/core/page_text.h"

using namespace fake;

class RecordsTest : public PageTest {
protected:
    // An item of three options, the first without sub-items, and one behind it.
    tagITEM_NODE_S* openTree()
    {
        return opened(R"(<I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A"/>
            <O ModeIndex="B"> <I ItemIndex="b1" Attr="SUBITEM"> <O ModeIndex="X"> <I ItemIndex="deep"/> </O> </I>
                <I ItemIndex="b2"/> </O>
            <O ModeIndex="C"> <I ItemIndex="c1"/> </O> </I> <I ItemIndex="Last"/>)");
    }
};

TEST_F(RecordsTest, FlattenedListShowsTheOptionInForce)
{
    tagITEM_NODE_S* tree = openTree();
    const std::tuple<tagITEM_ATTR_E, int, int, const char*, bool> cases[] = {
        // options 3, 40 and -1 don't exist
        {SUBITEM, 0, 1, "Mode Last ", false},  {SUBITEM, 1, 2, "Mode b1 deep b2 Last ", true},
        {SUBITEM, 3, 1, "Mode Last ", false},  {MSG_WITH_SUBITEM, 2, 1, "Mode b1 deep b2 Last ", true},
        {SUBITEM, -1, 1, "Mode Last ", false}, {MSG_WITH_SUBITEM, 0, 1, "Mode Last ", false},
        {COMMON, 1, 1, "Mode Last ", false},   {MSG_WITH_SUBITEM, 1, 40, "Mode Last ", true}};
    for (const auto& [attr, current, saved, keys, has] : cases) {
        tree->enAttr = attr;
        tree->s32CurIdx = current;
        tree->s32SavedIdx = saved;
        std::string found;
        for (const tagITEM_NODE_S* item : itemsOf(gstPageMgr.astPage[0])) {
            found += std::string(item->acItemIndex) + " ";
        }
        EXPECT_EQ(found, keys) << attr << " " << current << " " << saved;
        EXPECT_EQ(osdMenuHasSubItem(tree), has ? 1 : 0) << attr << " " << current << " " << saved;
    }
}

TEST_F(RecordsTest, SelectedItem)
{
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0) << "there is none";
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
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    EXPECT_EQ(describe(*page), " icon") << "an empty record";
}
