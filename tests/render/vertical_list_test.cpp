// The vertical list on recorded calls; the fake fonts are 20 pixels a byte wide and 30 high.
#include <array>

#include "osd_page.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::IsEmpty;

class VerticalListTest : public MenuTest {
protected:
    using Rows = std::vector<std::string>;

    void SetUp() override
    {
        MenuTest::SetUp();
        start(); // canvas of 1000 by 1000, style 0
    }

    Rows drawn(tagPAGE_NODE_S* page)
    {
        calls().lines.clear();
        EXPECT_EQ(OSD_MENU_RenderVerticalCanvas(page), 0);
        return blits();
    }

    tagPAGE_NODE_S* addPageWithMessage(tagPAGE_LAYOUT_E layout, const std::string& title = "")
    {
        tagPAGE_NODE_S* page = addPage(layout, title);
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press");
        return page;
    }
};

TEST_F(VerticalListTest, PlacesTitleRowsValuesAndMessage)
{
    tagPAGE_NODE_S* page = addPageWithMessage(PAGE_LAYOUT_VERTICAL, "Image");
    page->enTitlePos = PAGE_TITLE_CENTER; // plays no part
    addItem(page, "Gain", NAME_VAL, COMMON, "Auto")->bActive = 1;
    addItem(page, "More", NAME, SUBPAGE);
    setRange(addItem(page, "Zoom", NAME_BAR_VAL, COMMON), 0, 100, 1, 50);
    addItem(page, "Empty", NAME_VAL, COMMON); // no value, no value surface
    addItem(page, "Apply", NAME, CONFIRM_POP_BTN)->enItemPos = ITEM_POS_CENTER;
    const Rows rows = {
        "bold 32 grey 'Image' at 10,10",   "plain 28 white 'Gain' at 20,60",  "plain 28 white 'Auto' at 505,60",
        "bold 28 grey 'More' at 20,110",   "plain 28 grey 'Zoom' at 20,160",  "445x30 at 505,160",
        "plain 28 grey 'Empty' at 20,210", "bold 28 grey 'Apply' at 450,290", "bold 28 white 'Press' at 20,920"};
    EXPECT_EQ(drawn(page), rows);
    EXPECT_THAT(linesOf({"blit block", "blit plain 28 grey '50'"}),
                ElementsAre("blit block 15x30 at 148,0 on 445x30", "blit plain 28 grey '50' at 333,0 on 445x30"));
    EXPECT_EQ(linesOf({"measure"}).front(), "measure plain 32 'Image'") << "in the regular font, at the row's size";
    page->bKeyMsg = 2; // only exactly 1 is a pending line
    EXPECT_EQ(drawn(page).back(), "bold 28 grey 'Apply' at 450,290");
}

TEST_F(VerticalListTest, OtherSkinsHaveOneSizeAndNoIndent)
{
    const tagOSD_MENU_RECT_S large = {0.0f, 0.0f, 0.26041f, 0.46296f}; // 1000 by 1000 on the large base
    for (const auto& [style, big, size] : {std::tuple(1u, 0, 25), {2u, 0, 25}, {2u, 1, 37}}) {
        stop();
        start({style, 2, big, big == 1 ? large : Config().place});
        tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL, "T");
        addItem(page, "A", NAME_VAL, COMMON, "v")->bActive = 1;
        tagITEM_NODE_S* parent = addItem(page, "B", NAME, SUBITEM);
        setOptions(parent, {"only"});
        addSubItem(parent, 0, "C", NAME_VAL, COMMON);
        const char* selected = style == 1 ? "bold" : "plain";
        EXPECT_THAT(drawn(page), ElementsAre(format("bold %d grey 'T' at 10,10", size),
                                             format("%s %d white 'A' at 10,60", selected, size),
                                             format("%s %d white 'v' at 505,60", selected, size),
                                             format("bold %d grey 'B' at 10,110", size),
                                             format("plain %d grey 'C' at 10,160", size)));
    }
}

TEST_F(VerticalListTest, SubItemsFollowDepthFirst)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    tagITEM_NODE_S* mode = addItem(page, "Mode", NAME_VAL, SUBITEM);
    setOptions(mode, {"A", "B"}, 1);
    addSubItem(mode, 0, "hidden", NAME, COMMON)->bActive = 1; // of another option
    tagITEM_NODE_S* inner = addSubItem(mode, 1, "inner", NAME_VAL, SUBITEM);
    setOptions(inner, {"X"});
    tagITEM_NODE_S* deep = addSubItem(inner, 0, "deep", NAME, COMMON);
    addSubItem(mode, 1, "next", NAME, COMMON);
    addItem(page, "Last", NAME, CONFIRM_POP_BTN);
    mode->bActive = 1;
    EXPECT_THAT(drawn(page), ElementsAre("plain 32 white 'Mode' at 10,10", "plain 32 white 'B' at 505,10",
                                         "plain 28 grey 'inner' at 20,60", "plain 28 grey 'X' at 505,60",
                                         "bold 24 grey 'deep' at 30,110", "bold 28 grey 'next' at 20,160",
                                         "bold 32 grey 'Last' at 10,240"));
    inner->bActive = 1; // a selected sub-item takes the brightness over, one level at a time
    deep->bActive = 1;
    EXPECT_THAT(drawn(page), testing::IsSupersetOf({"plain 32 grey 'Mode' at 10,10", "plain 28 grey 'inner' at 20,60",
                                                    "bold 24 white 'deep' at 30,110"}));
    mode->s32CurIdx = 0;
    EXPECT_THAT(drawn(page), ElementsAre("plain 32 grey 'Mode' at 10,10", "plain 32 grey 'A' at 505,10",
                                         "bold 28 white 'hidden' at 20,60", "bold 32 grey 'Last' at 10,140"));
}

TEST_F(VerticalListTest, CaretUnderTheEditedDigit)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    tagITEM_NODE_S* item = addItem(page, "IpAddr", NAME_IP_VAL, EDITABLE);
    item->enValType = EDITTXT;
    setField(item->acValue[1], "192.168.001.020");
    EXPECT_EQ(drawn(page).back(), "plain 32 grey '192.168.001.020' at 505,10");
    EXPECT_THAT(linesOf({"fill"}), IsEmpty()) << "not while editing";
    item->bEditing = 1;
    for (const auto& [cursor, left] : {std::pair(0, 505), {-3, 505}, {5, 605}, {6, 645}, {14, 805}}) {
        item->s32EditCursor = cursor;
        (void)drawn(page);
        EXPECT_THAT(
            linesOf({"fill", "blit plain 32 grey '1"}),
            ElementsAre(format("fill %d,46 20x6 white", left), "blit plain 32 grey '192.168.001.020' at 505,10"));
    }
    item->s32EditCursor = 1000000; // far behind the text: stays in bounds
    (void)drawn(page);
    item->enCtx = NAME_VAL; // has no caret
    (void)drawn(page);
    EXPECT_THAT(linesOf({"fill"}), IsEmpty());
}

TEST_F(VerticalListTest, ValueTexts)
{
    tagITEM_NODE_S item = {};
    char text[OSD_TEXT_LEN] = {};
    int position = -5;
    int count = -6;
    const auto value = [&](int expected = 0) {
        EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), expected);
        return format("%s %d/%d", text, position, count);
    };
    const std::pair<std::array<int, 4>, const char*> ranges[] = {
        // minimum, maximum, step, value
        {{0, 100, 1, 50}, "50 50/101"},
        {{-10, 90, 5, 41}, "41 10/21"},
        {{0, 10, 0, 5}, "5 0/1"},
        {{100, 0, -10, 50}, "50 5/11"},
        {{INT32_MIN, INT32_MAX, -1, INT32_MAX}, "2147483647 -2147483648/-2147483648"}};
    for (const auto& [range, expected] : ranges) {
        setRange(&item, range[0], range[1], range[2], range[3]);
        EXPECT_EQ(value(), expected);
    }
    item = {};
    item.enValType = OPTTXT;
    setOptions(&item, {"A", "B", "C"}, 2);
    EXPECT_EQ(value(), "C 2/3");
    item.enValType = EDITTXT;
    EXPECT_EQ(value(), "B 2/3") << "the text being edited";
    item.enValType = static_cast<tagITEM_VAL_TYPE_E>(9);
    EXPECT_EQ(value(-1), "B 2/3");
    item.enValType = OPTTXT;
    item.s32CurIdx = 1000000; // past the options: stays in bounds
    EXPECT_EQ(value(), " 1000000/3");
}

TEST_F(VerticalListTest, LiveValuesAreReadAtEachDraw)
{
    setText("Fps", "", "30");
    setText("IpAddr", "", "10.0.0.7");
    platform().untranslated = {"none"};
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    addItem(page, "IpAddr", NAME_VAL, CONST_TXT, "old")->bShowValue = 1;
    addItem(page, "Fps", NAME_VAL, CONST_TXT, "old")->bShowValue = 1;
    EXPECT_THAT(drawn(page), ElementsAre("plain 32 grey 'IpAddr' at 10,10", "plain 32 grey '10.0.0.7' at 505,10",
                                         "plain 32 grey 'Fps' at 10,60", "plain 32 grey 't.30' at 505,60"));
    setText("Fps", "", "none");
    EXPECT_EQ(drawn(page).back(), "plain 32 grey 'Fps' at 10,60");
}

TEST_F(VerticalListTest, AutomaticAddressEndsTheWalk)
{
    const struct {
        const char *key, *options[2], *subKey, *subValue;
        int current, saved;
        OSD_BOOL ends;
    } cases[] = {
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, "DnsMode", "t.AutoMode", 0, 0, 1},
        {"IpMode", {"t.StaticIp", "t.DhcpIp"}, "DnsMode", "t.AutoMode", 0, 1, 1}, // the saved option counts
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, "DnsMode", "t.AutoMode", 0, 1, 0},
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, "DnsMode", "t.AutoMode", 1, 0, 0}, // no sub-items on screen
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, "DnsMode", "t.Manual", 0, 0, 0},
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, "Dns1", "t.AutoMode", 0, 0, 0},
        {"IpMode", {"DhcpIp", "StaticIp"}, "DnsMode", "t.AutoMode", 0, 0, 0},
        {"Mode", {"t.DhcpIp", "t.StaticIp"}, "DnsMode", "t.AutoMode", 0, 0, 0},
    };
    for (const auto& c : cases) {
        tagPAGE_NODE_S* page = addPageWithMessage(PAGE_LAYOUT_VERTICAL);
        tagITEM_NODE_S* mode = addItem(page, c.key, NAME, SUBITEM);
        setOptions(mode, {c.options[0], c.options[1]}, c.current);
        mode->s32SavedIdx = c.saved;
        addSubItem(mode, 0, "Other", NAME, COMMON, "t.AutoMode");
        addSubItem(mode, 0, c.subKey, NAME, COMMON, c.subValue);
        addItem(page, "Behind", NAME, COMMON);
        EXPECT_EQ(osdMenuJudgeNetWorkofDhcp(mode), c.ends) << c.key << c.current << c.saved << c.subKey;
        const size_t rows = c.ends == 1 ? 4 : c.current == 0 ? 5 : 3; // the message line is drawn all the same
        EXPECT_EQ(drawn(page).size(), rows);
        stop();
        start();
    }
}

TEST_F(VerticalListTest, FailingRowDoesNotStopThePage)
{
    const Rows next = {"plain 32 grey 'Next' at 10,10", "plain 32 grey 'w' at 505,10"};
    const Rows withoutValue = {"plain 32 grey 'Gain' at 10,10", "bold 28 grey 'sub' at 20,60",
                               "plain 32 grey 'Next' at 10,110", "plain 32 grey 'w' at 505,110"};
    const std::tuple<const char*, int, const char*, Rows> cases[] = {
        {"TTF_SetFontSize", 2, "F L\n", next},
        {"TTF_RenderUTF8_Blended", 1, "F L failed, pstItemNode->acItemIndex = Gain\n", next},
        {"TTF_RenderUTF8_Blended", 2, "", withoutValue}};
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    tagITEM_NODE_S* gain = addItem(page, "Gain", NAME_VAL, SUBITEM);
    setOptions(gain, {"v"});
    addSubItem(gain, 0, "sub", NAME, COMMON);
    addItem(page, "Next", NAME_VAL, COMMON, "w");
    for (const auto& [call, n, output, rows] : cases) {
        failCall(call, n);
        EXPECT_EQ(printed([&, rows = rows] { EXPECT_EQ(drawn(page), rows); }), output) << call << n;
    }
}

TEST_F(VerticalListTest, MessageLineIsForListsOnly)
{
    (void)addPageWithMessage(PAGE_LAYOUT_ICON);
    EXPECT_EQ(OSD_MENU_HandleKeyMsg({0, 300, 0, 30}), 0);
    EXPECT_THAT(blits(), IsEmpty());
    (void)addPageWithMessage(PAGE_LAYOUT_VERTICAL);
    EXPECT_EQ(OSD_MENU_HandleKeyMsg({0, 300, 0, 30}), 0);
    EXPECT_THAT(blits(), ElementsAre("bold 28 white 'Press' at 20,920")) << "the argument is dropped";
    failCall("SDL_UpperBlit");
    EXPECT_EQ(OSD_MENU_FillData2Canvas(nullptr, {7, 8, 1, 1}), 0);
    EXPECT_EQ(OSD_MENU_FillData2Canvas(nullptr, {7, 8, 1, 1}), 0) << "a missing source is no failure";
}
