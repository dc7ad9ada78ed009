// The vertical list on recorded calls; the fake fonts are 20 pixels a byte wide and 30 high.
#include "menu/render/value.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::IsEmpty;

class VerticalListTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        start(); // canvas of 1000 by 1000, style 0
    }

    std::vector<std::string> drawn(tagPAGE_NODE_S* page)
    {
        calls().lines.clear();
        EXPECT_EQ(OSD_MENU_RenderVerticalCanvas(page), 0);
        return blits();
    }

    void restart(const Config& config)
    {
        stop();
        start(config);
    }
};

TEST_F(VerticalListTest, PlacesTitleRowsValuesAndMessage)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL, "Image");
    page->enTitlePos = PAGE_TITLE_CENTER; // plays no part
    addItem(page, "Gain", NAME_VAL, COMMON, "Auto")->bActive = 1;
    addItem(page, "More", NAME, SUBPAGE);
    setRange(addItem(page, "Zoom", NAME_BAR_VAL, COMMON), 0, 100, 1, 50);
    addItem(page, "Empty", NAME_VAL, COMMON); // no value, no value surface
    addItem(page, "Apply", NAME, CONFIRM_POP_BTN)->enItemPos = ITEM_POS_CENTER;
    page->bKeyMsg = 1;
    setField(page->acKeyMsg, "Press");

    EXPECT_THAT(drawn(page),
                ElementsAre("bold 32 grey 'Image' at 10,10", "plain 28 white 'Gain' at 20,60",
                            "plain 28 white 'Auto' at 505,60", "bold 28 grey 'More' at 20,110",
                            "plain 28 grey 'Zoom' at 20,160", "445x30 at 505,160", "plain 28 grey 'Empty' at 20,210",
                            "bold 28 grey 'Apply' at 450,290", "bold 28 white 'Press' at 20,920"));
    EXPECT_THAT(linesOf({"blit block", "blit plain 28 grey '50'"}),
                ElementsAre("blit block 15x30 at 148,0 on 445x30", "blit plain 28 grey '50' at 333,0 on 445x30"));
    EXPECT_THAT(linesOf({"measure"}).front(), "measure plain 32 'Image'") << "in the regular font, at the row's size";
    page->bKeyMsg = 2; // only exactly 1 is a pending line
    EXPECT_EQ(drawn(page).back(), "bold 28 grey 'Apply' at 450,290");
}

TEST_F(VerticalListTest, OtherCanvasAndScale)
{
    restart({0, 2, 0, {0.0f, 0.0f, 0.35f, 0.7f}, false}); // 672 by 756
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    addItem(page, "Go", NAME, CONFIRM_POP_BTN); // first: no empty row above it
    addItem(page, "Gain", NAME_VAL, COMMON, "Auto");
    page->bKeyMsg = 1;
    setField(page->acKeyMsg, "Press");
    EXPECT_THAT(drawn(page), ElementsAre("bold 32 grey 'Go' at 6,7", "plain 32 grey 'Gain' at 6,52",
                                         "plain 32 grey 'Auto' at 339,52", "bold 28 white 'Press' at 13,688"));

    restart({0, 2, 1, {0.0f, 0.0f, 0.26041f, 0.46296f}, false}); // 1000 by 1000 on the large base
    page = addPage(PAGE_LAYOUT_VERTICAL, "T");
    addItem(page, "Gain", NAME_VAL, COMMON, "Auto");
    EXPECT_THAT(drawn(page), ElementsAre("bold 48 grey 'T' at 10,10", "plain 42 grey 'Gain' at 20,60",
                                         "plain 42 grey 'Auto' at 505,60"));
    enMenuStyle = 2;
    EXPECT_EQ(drawn(page).back(), "plain 37 grey 'Auto' at 505,60");
}

TEST_F(VerticalListTest, FontAndSizeFollowTheSkin)
{
    const struct {
        uint32_t style;
        std::vector<std::string> rows;
    } cases[] = {{0,
                  {"bold 32 grey 'T' at 10,10", "plain 28 white 'A' at 20,60", "plain 28 white 'v' at 505,60",
                   "bold 28 grey 'B' at 20,110", "plain 24 grey 'C' at 30,160"}},
                 {1,
                  {"bold 25 grey 'T' at 10,10", "bold 25 white 'A' at 10,60", "bold 25 white 'v' at 505,60",
                   "bold 25 grey 'B' at 10,110", "plain 25 grey 'C' at 10,160"}},
                 {2,
                  {"bold 25 grey 'T' at 10,10", "plain 25 white 'A' at 10,60", "plain 25 white 'v' at 505,60",
                   "bold 25 grey 'B' at 10,110", "plain 25 grey 'C' at 10,160"}}};
    for (const auto& c : cases) {
        restart({c.style});
        tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL, "T");
        addItem(page, "A", NAME_VAL, COMMON, "v")->bActive = 1;
        tagITEM_NODE_S* parent = addItem(page, "B", NAME, SUBITEM);
        setOptions(parent, {"only"});
        addSubItem(parent, 0, "C", NAME_VAL, COMMON);
        EXPECT_EQ(drawn(page), c.rows);
    }
}

TEST_F(VerticalListTest, SubItemsFollowDepthFirst)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL, "T");
    tagITEM_NODE_S* mode = addItem(page, "Mode", NAME_VAL, SUBITEM);
    setOptions(mode, {"A", "B"}, 1);
    addSubItem(mode, 0, "hidden", NAME, COMMON)->bActive = 1; // of another option
    tagITEM_NODE_S* inner = addSubItem(mode, 1, "inner", NAME_VAL, SUBITEM);
    setOptions(inner, {"X"});
    tagITEM_NODE_S* deep = addSubItem(inner, 0, "deep", NAME_VAL, COMMON, "v");
    addSubItem(mode, 1, "next", NAME, COMMON);
    addItem(page, "Last", NAME_VAL, COMMON);
    mode->bActive = 1;
    const std::vector<std::string> rows = drawn(page);
    EXPECT_THAT(rows, ElementsAre("bold 32 grey 'T' at 10,10", "plain 28 white 'Mode' at 20,60",
                                  "plain 28 white 'B' at 505,60", "plain 24 grey 'inner' at 30,110",
                                  "plain 24 grey 'X' at 505,110", "plain 20 grey 'deep' at 40,160",
                                  "plain 20 grey 'v' at 505,160", "bold 24 grey 'next' at 30,210",
                                  "plain 28 grey 'Last' at 20,260"));

    inner->bActive = 1; // a selected sub-item takes the brightness over, one level at a time
    deep->bActive = 1;
    EXPECT_THAT(drawn(page), testing::IsSupersetOf({"plain 28 grey 'Mode' at 20,60", "plain 24 grey 'inner' at 30,110",
                                                    "plain 20 white 'deep' at 40,160"}));
    mode->s32CurIdx = 0;
    EXPECT_THAT(drawn(page),
                ElementsAre("bold 32 grey 'T' at 10,10", "plain 28 grey 'Mode' at 20,60", "plain 28 grey 'A' at 505,60",
                            "bold 24 white 'hidden' at 30,110", "plain 28 grey 'Last' at 20,160"));
}

TEST_F(VerticalListTest, CaretUnderTheEditedDigit)
{
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    tagITEM_NODE_S* item = addItem(page, "IpAddr", NAME_IP_VAL, EDITABLE);
    item->enValType = EDITTXT;
    setField(item->acValue[1], "192.168.001.020");
    EXPECT_THAT(drawn(page), testing::Contains("plain 32 grey '192.168.001.020' at 505,10"));
    EXPECT_THAT(linesOf({"fill"}), IsEmpty()) << "not while editing";
    item->bEditing = 1;
    const std::pair<int, const char*> cases[] = {{0, "fill 505,46 20x6 white"},
                                                 {-3, "fill 505,46 20x6 white"},
                                                 {5, "fill 605,46 20x6 white"},
                                                 {6, "fill 645,46 20x6 white"},
                                                 {14, "fill 805,46 20x6 white"}};
    for (const auto& [cursor, fill] : cases) {
        item->s32EditCursor = cursor;
        (void)drawn(page);
        EXPECT_THAT(linesOf({"fill", "blit plain 32 grey '1"}),
                    ElementsAre(fill, "blit plain 32 grey '192.168.001.020' at 505,10"))
            << cursor;
    }
    item->s32EditCursor = 1000000; // far behind the text: stays in bounds
    (void)drawn(page);
}

TEST_F(VerticalListTest, ValueTexts)
{
    const struct {
        int min, max, step, current;
        const char* text;
        int position, count;
    } cases[] = {{0, 100, 1, 50, "50", 50, 101}, {-10, 90, 5, 41, "41", 10, 21}, {0, 10, 3, 10, "10", 3, 4},
                 {0, 10, 0, 5, "5", 0, 1},       {100, 0, -10, 50, "50", 5, 11}, {10, 0, 5, -7, "-7", -3, -1}};
    tagITEM_NODE_S item = {};
    char text[OSD_TEXT_LEN] = {};
    int position = -5;
    int count = -6;
    for (const auto& c : cases) {
        setRange(&item, c.min, c.max, c.step, c.current);
        EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), 0);
        EXPECT_STREQ(text, c.text);
        EXPECT_EQ(position, c.position);
        EXPECT_EQ(count, c.count);
    }
    setRange(&item, INT32_MIN, INT32_MAX, -1, INT32_MAX); // no overflow
    EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), 0);
    setRange(&item, INT32_MAX, INT32_MIN, INT32_MIN, INT32_MIN);
    EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), 0);
    EXPECT_STREQ(text, "-2147483648");

    item = {};
    item.enValType = OPTTXT;
    setOptions(&item, {"A", "B", "C"}, 2);
    EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), 0);
    EXPECT_STREQ(text, "C");
    EXPECT_EQ(position, 2);
    EXPECT_EQ(count, 3);
    item.enValType = EDITTXT;
    EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), 0);
    EXPECT_STREQ(text, "B") << "the text being edited";
    item.enValType = static_cast<tagITEM_VAL_TYPE_E>(9);
    EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), -1);
    EXPECT_STREQ(text, "B");
    EXPECT_EQ(position, 2);
    item.enValType = OPTTXT;
    for (int index : {-1, 32, 1000000}) { // past the options: stays in bounds
        item.s32CurIdx = index;
        (void)osdMenuGetItemValInfo(&item, text, &position, &count);
        EXPECT_LT(strnlen(text, sizeof text), sizeof text);
    }
}

TEST_F(VerticalListTest, LiveValuesAreReadAtEachDraw)
{
    setText("Fps", "", "30");
    setText("IpAddr", "", "10.0.0.7");
    platform().untranslated = {"none"};
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    addItem(page, "Fps", NAME_VAL, CONST_TXT, "old")->bShowValue = 1;
    addItem(page, "IpAddr", NAME_VAL, CONST_TXT, "old")->bShowValue = 1;
    EXPECT_THAT(drawn(page), ElementsAre("plain 32 grey 'Fps' at 10,10", "plain 32 grey 't.30' at 505,10",
                                         "plain 32 grey 'IpAddr' at 10,60", "plain 32 grey '10.0.0.7' at 505,60"));
    setText("Fps", "", "none");
    EXPECT_THAT(drawn(page), ElementsAre("plain 32 grey 'Fps' at 10,10", "plain 32 grey 'IpAddr' at 10,60",
                                         "plain 32 grey '10.0.0.7' at 505,60"));
}

TEST_F(VerticalListTest, AutomaticAddressEndsTheWalk)
{
    const struct {
        const char* key;
        const char* options[2];
        int current, saved;
        const char *subKey, *subValue;
        OSD_BOOL ends;
    } cases[] = {
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, 0, 0, "DnsMode", "t.AutoMode", 1},
        {"IpMode", {"t.StaticIp", "t.DhcpIp"}, 0, 1, "DnsMode", "t.AutoMode", 1}, // the saved option counts
        {"IpMode", {"t.StaticIp", "t.DhcpIp"}, 0, 0, "DnsMode", "t.AutoMode", 0},
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, 1, 0, "DnsMode", "t.AutoMode", 0}, // none under the option on screen
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, 0, 0, "DnsMode", "t.Manual", 0},
        {"IpMode", {"t.DhcpIp", "t.StaticIp"}, 0, 0, "Dns1", "t.AutoMode", 0},
        {"IpMode", {"DhcpIp", "StaticIp"}, 0, 0, "DnsMode", "t.AutoMode", 0},
        {"Mode", {"t.DhcpIp", "t.StaticIp"}, 0, 0, "DnsMode", "t.AutoMode", 0},
    };
    for (const auto& c : cases) {
        tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
        tagITEM_NODE_S* mode = addItem(page, c.key, NAME, SUBITEM);
        setOptions(mode, {c.options[0], c.options[1]}, c.current);
        mode->s32SavedIdx = c.saved;
        addSubItem(mode, 0, "Other", NAME, COMMON, "t.AutoMode");
        addSubItem(mode, 0, c.subKey, NAME, COMMON, c.subValue);
        addItem(page, "Behind", NAME, COMMON);
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press");
        EXPECT_EQ(osdMenuJudgeNetWorkofDhcp(mode), c.ends) << c.key << c.current << c.saved << c.subKey;
        const std::vector<std::string> rows = drawn(page);
        const bool behind = rows.at(rows.size() - 2).find("Behind") != std::string::npos;
        EXPECT_EQ(behind, c.ends == 0);
        EXPECT_EQ(rows.back(), "bold 28 white 'Press' at 20,920") << "the message line is drawn all the same";
        restart({});
    }
}

TEST_F(VerticalListTest, FailingRowDoesNotStopThePage)
{
    const struct {
        const char* call;
        int n;
        const char* printed;
        std::vector<std::string> rows;
    } cases[] = {
        {"TTF_SetFontSize", 2, "F L\n", {"plain 32 grey 'Next' at 10,10", "plain 32 grey 'w' at 505,10"}},
        {"TTF_SetFontSize",
         3,
         "F L\nF L failed, pstItemNode->acItemIndex = Gain\n",
         {"plain 32 grey 'Next' at 10,10", "plain 32 grey 'w' at 505,10"}},
        {"TTF_RenderUTF8_Blended",
         1,
         "F L failed, pstItemNode->acItemIndex = Gain\n",
         {"plain 32 grey 'Next' at 10,10", "plain 32 grey 'w' at 505,10"}},
        {"TTF_RenderUTF8_Blended",
         2,
         "",
         {"plain 32 grey 'Gain' at 10,10", "bold 28 grey 'sub' at 20,60", "plain 32 grey 'Next' at 10,110",
          "plain 32 grey 'w' at 505,110"}},
    };
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    tagITEM_NODE_S* gain = addItem(page, "Gain", NAME_VAL, SUBITEM);
    setOptions(gain, {"v"});
    addSubItem(gain, 0, "sub", NAME, COMMON);
    addItem(page, "Next", NAME_VAL, COMMON, "w");
    for (const auto& c : cases) {
        failCall(c.call, c.n);
        EXPECT_EQ(printed([&] { EXPECT_EQ(drawn(page), c.rows); }), c.printed) << c.call << c.n;
    }
    failCall("TTF_RenderUTF8_Blended");
    SDL_Rect cursor = {1, 200, 3, 40};
    (void)printed([&] { EXPECT_EQ(OSD_MENU_RenderVerticalItem(gain, &cursor, 0), -1); });
    EXPECT_EQ(cursor.y, 200);
    EXPECT_EQ(cursor.h, 40);
    EXPECT_EQ(OSD_MENU_RenderVerticalItem(itemAt(page->stItemList, 1), &cursor, 1), 0);
    EXPECT_EQ(cursor.y, 260);
    EXPECT_EQ(cursor.h, 30);
}

TEST_F(VerticalListTest, MessageLineIsForListsOnly)
{
    for (tagPAGE_LAYOUT_E layout : {PAGE_LAYOUT_ICON, PAGE_LAYOUT_HORIZONTAL, PAGE_LAYOUT_HORIZONTAL_KETH}) {
        tagPAGE_NODE_S* page = addPage(layout);
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press");
        EXPECT_EQ(OSD_MENU_HandleKeyMsg({0, 300, 0, 30}), 0);
        EXPECT_THAT(blits(), IsEmpty()) << layout;
    }
    tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL);
    page->bKeyMsg = 1;
    setField(page->acKeyMsg, "Press");
    EXPECT_EQ(OSD_MENU_HandleKeyMsg({0, 300, 0, 30}), 0);
    EXPECT_THAT(blits(), ElementsAre("bold 28 white 'Press' at 20,920")) << "the argument is dropped";
}

TEST_F(VerticalListTest, FillBlitsTheWholeSource)
{
    SDL_Surface* source = SDL_CreateRGBSurfaceWithFormat(0, 40, 30, 32, SDL_PIXELFORMAT_ARGB8888);
    EXPECT_EQ(OSD_MENU_FillData2Canvas(source, {7, 8, 1, 1}), 0);
    EXPECT_EQ(OSD_MENU_FillData2Canvas(nullptr, {7, 8, 1, 1}), 0);
    failCall("SDL_UpperBlit");
    EXPECT_EQ(OSD_MENU_FillData2Canvas(source, {-5, 2000, 0, 0}), 0);
    EXPECT_THAT(blits(), ElementsAre("40x30 at 7,8", "40x30 at -5,2000"));
    SDL_FreeSurface(source);
}
