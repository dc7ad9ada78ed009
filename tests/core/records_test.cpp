// Page stack, flattened lists, selection, release.
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;

class RecordsTest : public MenuTest {
protected:
    // Three options: no sub-items, "b1" and "b2" with "deep" below it, "c1".
    tagITEM_NODE_S* addTree(tagPAGE_NODE_S* page, tagITEM_ATTR_E attr, int current, int saved)
    {
        tagITEM_NODE_S* item = addItem(page, "Mode", NAME_VAL, attr);
        setOptions(item, {"A", "B", "C"}, current);
        item->s32SavedIdx = saved;
        tagITEM_NODE_S* parent = addSubItem(item, 1, "b1", NAME_VAL, SUBITEM);
        setOptions(parent, {"Only"});
        addSubItem(parent, 0, "deep", NAME, COMMON);
        addSubItem(item, 1, "b2", NAME, COMMON);
        addSubItem(item, 2, "c1", NAME, COMMON);
        return item;
    }

    std::vector<std::string> flatten(tagITEM_NODE_S* item)
    {
        list_head head = {&head, &head};
        EXPECT_EQ(osdMenuInsertItems2TmpList(item, &head), 0);
        std::vector<std::string> names;
        for (tagITEM_NODE_S* entry : osdFlatItems(&head)) {
            names.emplace_back(entry->acItemIndex);
        }
        return names;
    }
};

TEST_F(RecordsTest, FlattenedListShowsTheOptionInForce)
{
    // option 0 has no sub-items; options 3, 40 and -1 don't exist
    const struct {
        tagITEM_ATTR_E attr;
        int current, saved;
        OSD_BOOL hasSubItems;
        std::vector<std::string> names;
    } cases[] = {
        {SUBITEM, 0, 1, 0, {"Mode"}},           {SUBITEM, 1, 2, 1, {"Mode", "b1", "deep", "b2"}},
        {SUBITEM, 2, 1, 1, {"Mode", "c1"}},     {MSG_WITH_SUBITEM, 2, 1, 1, {"Mode", "b1", "deep", "b2"}},
        {MSG_WITH_SUBITEM, 1, 0, 1, {"Mode"}},  {MSG_WITH_SUBITEM, 0, 1, 0, {"Mode"}},
        {MSG_WITH_SUBITEM, 1, 40, 1, {"Mode"}}, {SUBITEM, -1, 0, 0, {"Mode"}},
        {SUBITEM, 3, 3, 0, {"Mode"}},           {SUBITEM, 40, -1, 0, {"Mode"}},
    };
    for (const auto& c : cases) {
        tagITEM_NODE_S* item = addTree(addPage(PAGE_LAYOUT_VERTICAL), c.attr, c.current, c.saved);
        EXPECT_EQ(flatten(item), c.names) << c.attr << " " << c.current << " " << c.saved;
        EXPECT_EQ(osdMenuHasSubItem(item), c.hasSubItems) << c.attr << " " << c.current;
        stop();
    }
}

TEST_F(RecordsTest, OtherItemsNeverLookAtTheirLists)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    tagITEM_NODE_S* common = addItem(page, "Common", NAME_VAL, COMMON, "Value"); // heads never initialised
    tagITEM_NODE_S* numeric = addItem(page, "Numeric", NAME_VAL, SUBITEM);
    setRange(numeric, 0, 10, 1, 5);
    tagITEM_NODE_S* bare = addItem(page, "Bare", NAME_VAL, SUBITEM); // no options
    for (tagITEM_NODE_S* item : {common, numeric, bare}) {
        EXPECT_EQ(osdMenuHasSubItem(item), 0);
        EXPECT_EQ(osdMenuIsSubItemSelected(item), 0);
        EXPECT_THAT(flatten(item), ElementsAre(item->acItemIndex));
    }
}

TEST_F(RecordsTest, SelectedItemOfAList)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
    tagITEM_NODE_S* item = addTree(page, SUBITEM, 1, 1);
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
    tagITEM_NODE_S* first = itemAt(item->astSubList[1], 0);
    tagITEM_NODE_S* deep = itemAt(first->astSubList[0], 0);

    deep->bActive = 1; // two levels down
    EXPECT_EQ(osdMenuGetSelectedItem(page), deep);
    EXPECT_EQ(osdMenuIsSubItemSelected(item), 0);
    EXPECT_EQ(osdMenuIsSubItemSelected(first), 1);

    deep->bActive = 0;
    itemAt(item->astSubList[2], 0)->bActive = 1; // under another option
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
    EXPECT_EQ(osdMenuIsSubItemSelected(item), 0);
    item->s32CurIdx = 2;
    EXPECT_EQ(osdMenuGetSelectedItem(page), itemAt(item->astSubList[2], 0));
    EXPECT_EQ(osdMenuIsSubItemSelected(item), 1);
}

TEST_F(RecordsTest, SelectedItemOfAnIconPage)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_ICON);
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
    tagITEM_NODE_S* first = addItem(page, "First", ICON, SUBPAGE);
    tagITEM_NODE_S* second = addItem(page, "Second", ICON, SUBPAGE);
    second->bActive = 1; // plays no part here
    const std::pair<int, tagITEM_NODE_S*> cases[] = {{0, first}, {1, second}, {2, nullptr}, {99, nullptr}};
    for (const auto& [index, item] : cases) {
        page->s32SelIdx = index;
        EXPECT_EQ(osdMenuGetSelectedItem(page), item) << index;
    }
}

TEST_F(RecordsTest, StackGivesAndReleasesTheTopPage)
{
    start();
    EXPECT_EQ(osdXmlGetCurPage(), nullptr);
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    EXPECT_EQ(gstPageMgr.s32PageCnt, 0);

    tagPAGE_NODE_S* bottom = addPage(PAGE_LAYOUT_VERTICAL);
    addItem(bottom, "Gain", NAME, COMMON);
    tagPAGE_NODE_S* top = addPage(PAGE_LAYOUT_VERTICAL, "Title");
    addTree(top, MSG_WITH_SUBITEM, 1, 0); // an uncommitted change dies with its item
    EXPECT_EQ(osdXmlGetCurPage(), top);
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    EXPECT_EQ(osdXmlGetCurPage(), bottom);
    EXPECT_EQ(liveItems(), 1);
    EXPECT_EQ(describe(*top), "");
    EXPECT_EQ(top->stItemList.next, nullptr);
    EXPECT_THAT(linesOf({"set", "business"}), testing::IsEmpty());
}
