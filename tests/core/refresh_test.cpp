// The host's three refresh functions.
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::IsEmpty;

class RefreshTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        start();
        setText("Gain", "Auto:Low:High", "Low");
        setText("Mode", "", "On");
        setNumber("Zoom", 0, 90, 5, 40);
        page = open("p", "<P Layout='vertical_align'>"
                         "<I ItemIndex='Gain' Ctx='NAME_VAL' Attr='COMMON'/>"
                         "<I ItemIndex='Mode' Ctx='NAME_VAL' Attr='SUBITEM'><O ModeIndex='Off'/><O ModeIndex='On'>"
                         "<I ItemIndex='Zoom' Ctx='NAME_VAL' Attr='COMMON' ValType='NUMERICAL'/></O></I>"
                         "<I ItemIndex='Go' Ctx='NAME' Attr='CONFIRM_POP_BTN' ConfirmPage='c'/>"
                         "<I ItemIndex='Gain' Ctx='NAME_VAL' Attr='COMMON'/></P>");
        setText("Gain", "Auto:Low:High", "High");
        setNumber("Zoom", 0, 90, 5, 45);
        calls().lines.clear();
    }

    // Shown option of the two "Gain" items, option of "Mode", number below it.
    std::vector<int> state()
    {
        const tagITEM_NODE_S* mode = itemAt(page->stItemList, 1);
        return {itemAt(page->stItemList, 0)->s32CurIdx, mode->s32CurIdx, itemAt(mode->astSubList[1], 0)->s32Cur,
                itemAt(page->stItemList, 3)->s32CurIdx};
    }

    int refreshItem(std::string key)
    {
        int result = -1;
        (void)printed([&] { result = OSD_MENU_RefreshItem(key.data()); });
        return result;
    }

    tagPAGE_NODE_S* page = nullptr;
};

TEST_F(RefreshTest, WithoutAPage)
{
    stop();
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), -1);
    EXPECT_EQ(refreshItem("Gain"), 0);
    EXPECT_EQ(OSD_MENU_RefreshPage(), 0);
    EXPECT_THAT(platform().pushes, IsEmpty());
}

TEST_F(RefreshTest, ItemsOfOneKeyWithTheirSubItems)
{
    EXPECT_THAT(state(), ElementsAre(1, 1, 40, 1));
    EXPECT_EQ(refreshItem("Gain"), 0);
    EXPECT_THAT(state(), ElementsAre(2, 1, 40, 2));
    EXPECT_EQ(linesOf({"push"}).size(), 1u);
    EXPECT_EQ(refreshItem("Mode"), 0);
    EXPECT_THAT(state(), ElementsAre(2, 1, 45, 2));
    EXPECT_EQ(linesOf({"push"}).size(), 2u);

    setNumber("Zoom", 0, 90, 5, 50);
    EXPECT_EQ(refreshItem("Zoom"), 0) << "sub-items are not searched";
    EXPECT_EQ(refreshItem("Nobody"), 0);
    EXPECT_THAT(state(), ElementsAre(2, 1, 45, 2));
    EXPECT_EQ(linesOf({"push"}).size(), 2u);
}

TEST_F(RefreshTest, PageUpToTheConfirmButton)
{
    (void)printed([] { EXPECT_EQ(OSD_MENU_RefreshPage(), 0); });
    EXPECT_THAT(state(), ElementsAre(2, 1, 45, 1));
    EXPECT_THAT(platform().pushes, IsEmpty());
}

TEST_F(RefreshTest, CurrentPageIsBuiltAnew)
{
    page->bKeyMsg = 1;
    itemAt(page->stItemList, 0)->bActive = 0;
    itemAt(page->stItemList, 3)->bActive = 1;
    itemAt(page->stItemList, 3)->s32CurIdx = 0; // uncommitted
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0);
    EXPECT_THAT(state(), ElementsAre(2, 1, 45, 2));
    EXPECT_STREQ(page->acPageName, "p");
    EXPECT_EQ(page->bKeyMsg, 0);
    EXPECT_EQ(page->s32ItemCnt, 4);
    EXPECT_EQ(itemAt(page->stItemList, 0)->bActive, 1);
    EXPECT_EQ(liveItems(), 5);
    EXPECT_EQ(gstPageMgr.s32PageCnt, 1);
    EXPECT_EQ(linesOf({"push"}).size(), 1u);

    failCall("document");
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0) << "also when the page can't be had";
    EXPECT_THAT(itemNames(page), IsEmpty());
    EXPECT_EQ(page->s32ItemCnt, 0);
    EXPECT_STREQ(page->acPageName, "p");
}
