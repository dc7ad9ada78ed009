// Values read again by the host's three refresh functions, where they stand, and which items a page shows.
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
        platform().translated = "";
        setText("C/Gain", "Auto:Low:High", "Low");
        setText("Mode", "", "B");
        setText("C/Deep", "", "X");
        setText("Default/Ip", "", "10.0.0.1");
        setNumber("C/Zoom", 0, 90, 5, 40);
        opened(R"(<I ItemIndex="Gain" DataZone="Cam"/>
            <I ItemIndex="Mode" Attr="SUBITEM" DataZone="None"> <O ModeIndex="A"/> <O ModeIndex="B">
                <I ItemIndex="Zoom" ValType="NUMERICAL" DataZone="Cam"/> <I ItemIndex="Bare" Ctx="NAME"/>
                <I ItemIndex="Ip" Attr="EDITABLE"/>
                <I ItemIndex="Deep" Attr="MSG_WITH_SUBITEM" DataZone="Cam"> <O ModeIndex="X"/>
                    <O ModeIndex="Y"> <I ItemIndex="Zoom" ValType="NUMERICAL" DataZone="Cam"/> </O> </I> </O> </I>
            <I ItemIndex="Go" Attr="CONFIRM_POP_BTN" ConfirmPage="c"/> <I ItemIndex="Gain" DataZone="Cam"/>)");
        setText("C/Gain", "Other:List", "High");
        setText("C/Deep", "", "Y");
        setText("Default/Ip", "", "10.0.0.2");
        setNumber("C/Zoom", 1, 2, 3, 45);
    }

    // The values on the screen, and how often the menu was drawn; nothing else has changed.
    static void expect(const std::string& gain, const std::string& below, const std::string& last, size_t pushes)
    {
        EXPECT_EQ(joined(screen(), "; "), "p; > Gain  " + gain + ";   Mode  B; " + below + ";   Go;   Gain  " + last);
        EXPECT_EQ(platform().pushes.size(), pushes);
    }

    static std::string refresh(std::string key)
    {
        return printed([&] { EXPECT_EQ(OSD_MENU_RefreshItem(key.data()), 0); });
    }

    const std::string before = "    Zoom  40 of 0..90;     Bare;     Ip  10.0.0.1;     Deep  X";
    const std::string behind =
        "    Zoom  45 of 0..90;     Bare;     Ip  10.0.0.2;     Deep  Y;       Zoom  45 of 0..90";
};

TEST_F(RefreshTest, ItemsOfOneKeyWithTheirSubItems)
{
    expect("Low", before, "Low", 0);
    EXPECT_EQ(refresh("Gain"), "");
    expect("High", before, "High", 1);
    EXPECT_THAT(describe(itemOf("Gain")), EndsWith(" [Auto Auto] [Low Low] [High High] = High")) << "the list stays";
    EXPECT_EQ(refresh("Zoom"), "") << "sub-items are not searched";
    expect("High", before, "High", 1);
    EXPECT_EQ(refresh("Mode"), "[F:L] INDEX Zoom \n[F:L] INDEX Bare \n[F:L] INDEX Ip \n[F:L] INDEX Deep \n");
    expect("High", behind, "High", 2);
    EXPECT_EQ(itemOf("Zoom").s32Reserved, 7);
    gstMenuMgr.pfnGetDataZoneParent = nullptr;
    setText("Gain", "", "Auto");
    (void)refresh("Gain");
    expect("Auto", behind, "Auto", 3);
    setText("Gain", "", "Medium"); // no option is called so
    (void)refresh("Gain");
    expect("Auto", behind, "Auto", 4);
    EXPECT_EQ(osdMenuUpdateSubItems(&itemOf("Gain")), -1) << "an item without lists";
}

TEST_F(RefreshTest, PageUpToTheConfirmButton)
{
    EXPECT_EQ(OSD_MENU_RefreshPage(), 0);
    expect("High", behind, "Low", 0);
}

TEST_F(RefreshTest, CurrentPageIsBuiltAnew)
{
    tagPAGE_NODE_S& record = gstPageMgr.astPage[0];
    record.bKeyMsg = 1;
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0);
    expect("Other", replaced(behind, "45 of 0..90", "45 of 1..2"), "Other", 1);
    EXPECT_EQ(describe(record), "p vertical_align items=4");
    failCall("document");
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0) << "also when the page can't be had";
    EXPECT_EQ(describe(record), "p vertical_align");
    stop(); // without a page
    EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), -1);
    EXPECT_EQ(refresh("Gain"), "");
    EXPECT_EQ(OSD_MENU_RefreshPage(), 0);
}

TEST_F(PageTest, FlattenedListShowsTheOptionInForce)
{
    // an item of three options, the first without sub-items, and one behind it
    tagITEM_NODE_S* tree = opened(R"(<I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A"/>
        <O ModeIndex="B"> <I ItemIndex="b1" Attr="SUBITEM"> <O ModeIndex="X"> <I ItemIndex="deep"/> </O> </I>
            <I ItemIndex="b2"/> </O>
        <O ModeIndex="C"> <I ItemIndex="c1"/> </O> </I> <I ItemIndex="Last"/>)");
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

TEST_F(PageTest, SelectedItem)
{
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0) << "there is none";
    tagPAGE_NODE_S* page = openPage("<I ItemIndex='Gain'/> <I ItemIndex='Last'/>");
    EXPECT_EQ(osdMenuGetSelectedItem(page), itemAt(page->stItemList, 0));
    page->enLayout = PAGE_LAYOUT_ICON; // here the position names it
    page->s32SelIdx = 1;
    EXPECT_EQ(osdMenuGetSelectedItem(page), itemAt(page->stItemList, 1));
    page->s32SelIdx = 2;
    EXPECT_EQ(osdMenuGetSelectedItem(page), nullptr);
    EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    EXPECT_EQ(describe(*page), " icon") << "an empty record";
}
