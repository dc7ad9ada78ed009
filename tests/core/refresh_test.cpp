// Values read again: the host's three refresh functions, and the places where the values stand.
#include "menu/core/value_bind.h"
#include "tests/core/page_text.h"

using namespace fake;
using testing::EndsWith;

class RefreshTest : public PageTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        start({0, 2, 0, {0.0f, 0.0f, 0.2f, 0.2f}, true});
        platform().parents = {{"Cam", "C"}, {"", "Default"}}; // values stand where the data zone says, and only there
        setText("C/Gain", "Auto:Low:High", "Low");
        setText("Mode", "", "B");
        setNumber("C/Zoom", 0, 90, 5, 40);
        const std::string gain = item("Gain NAME_VAL COMMON DataZone='Cam'");
        const std::string zoom = item("Zoom NAME_VAL COMMON ValType='NUMERICAL' DataZone='Cam'");
        const std::string deep = "<O ModeIndex='X'/><O ModeIndex='Y'>" + zoom + "</O>";
        const std::string below = zoom + item("Bare NAME COMMON") + item("Ip NAME_IP_VAL EDITABLE") +
                                  item("Deep NAME_VAL MSG_WITH_SUBITEM Msg='m' DataZone='Cam'", deep);
        const std::string options = "<O ModeIndex='A'>" + gain + "</O><O ModeIndex='B'>" + below + "</O>";
        opened(gain + item("Mode NAME_VAL SUBITEM DataZone='None'", options) +
               item("Go NAME CONFIRM_POP_BTN ConfirmPage='c'") + gain);
        setText("C/Gain", "Other:List", "High");
        setText("C/Deep", "", "Y");
        setText("Default/Ip", "", "10.0.0.2");
        setNumber("C/Zoom", 1, 2, 3, 45);
    }

    static tagITEM_NODE_S* at(int index) { return itemAt(gstPageMgr.astPage[0].stItemList, index); }
    static std::string below(int index) { return describe(*itemAt(at(1)->astSubList[1], index)); }

    // Shown option of the first and the other "Gain"; then the pushes so far.
    static std::string state()
    {
        return format("%d %d pushes %zu", at(0)->s32CurIdx, at(3)->s32CurIdx, platform().pushes.size());
    }

    static std::string refresh(std::string key)
    {
        return printed([&] { EXPECT_EQ(OSD_MENU_RefreshItem(key.data()), 0); });
    }
};

TEST_F(RefreshTest, ItemsOfOneKeyWithTheirSubItems)
{
    EXPECT_EQ(state(), "1 1 pushes 0");
    EXPECT_EQ(refresh("Gain"), "");
    EXPECT_EQ(state(), "2 2 pushes 1");
    EXPECT_THAT(describe(*at(0)), EndsWith(" [Auto|t.Auto][Low|t.Low][High|t.High] cur=2 saved=2"));
    EXPECT_EQ(refresh("Zoom"), "");
    EXPECT_THAT(below(0), EndsWith(" 0..90/5=40,40")) << "sub-items are not searched";
    EXPECT_EQ(refresh("Mode"), "[F:L] INDEX Zoom \n[F:L] INDEX Bare \n[F:L] INDEX Ip \n[F:L] INDEX Deep \n");
    EXPECT_THAT(below(0), EndsWith(" 0..90/5=45,45"));
    EXPECT_EQ(itemAt(at(1)->astSubList[1], 0)->s32Reserved, 7);
    EXPECT_THAT(below(2), EndsWith(" [10.0.0.2][10.0.0.2]"));
    EXPECT_THAT(below(3), EndsWith(" 0..90/5=45,45}] cur=1 saved=1"));
    gstMenuMgr.pfnGetDataZoneParent = nullptr;
    setText("Gain", "", "Auto");
    (void)refresh("Gain");
    EXPECT_EQ(state(), "0 0 pushes 3");
    setText("Gain", "", "Medium"); // no option is called so
    (void)refresh("Gain");
    EXPECT_EQ(state(), "0 0 pushes 4");
    EXPECT_EQ(osdMenuUpdateSubItems(at(0)), -1) << "an item without lists";
}

TEST_F(RefreshTest, PageUpToTheConfirmButton)
{
    EXPECT_EQ(OSD_MENU_RefreshPage(), 0);
    EXPECT_EQ(state(), "2 1 pushes 0");
    EXPECT_THAT(below(0), EndsWith(" 0..90/5=45,45"));
}

TEST_F(RefreshTest, CurrentPageIsBuiltAnew)
{
    tagPAGE_NODE_S& record = gstPageMgr.astPage[0];
    record.bKeyMsg = 1;
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0);
    EXPECT_EQ(state(), "0 0 pushes 1");
    EXPECT_EQ(describe(record), "p layout=1 items=4");
    EXPECT_EQ(record.bKeyMsg, 0);
    failCall("document");
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0) << "also when the page can't be had";
    EXPECT_EQ(describe(record), "p layout=1");
    stop(); // without a page
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), -1);
    EXPECT_EQ(refresh("Gain"), "");
    EXPECT_EQ(OSD_MENU_RefreshPage(), 0);
}
