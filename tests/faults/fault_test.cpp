// Every call that can fail fails once, alone: nothing is left over, and the next draw is the undisturbed picture.
#include <algorithm>
#include <climits>
#include <cstring>
#include <tinyxml2.h>

#include "osd_page.h"
#include "osd_xml.h"
#include "tests/fake/keys.h"
#include "tests/fake/menu_test.h"

using namespace fake;

class FaultTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        setNumber("Zoom", 0, 100, 1, 40);
        setText("Gain", "Auto:Low:High", "Low");
        setText("Language", "English:German", "English");
        setText("DnsMode", "", "Manual");
        setText("IpAddr", "", "10.0.0.7");
        (void)press("Live=Text IpMode=DhcpIp");
        platform().deviceType = "PTZ";
        setPages(R"(
            confirm: <I ItemIndex="Yes" Attr="CONFIRM"/>
            more: <I ItemIndex="Language"/>
        )");
        setMain("");
        start({0, 1, 0, {0.0f, 0.0f, 0.3f, 0.6f}, false});
    }

    static void setMain(const std::string& attributes)
    {
        setPage("main", R"(<I ItemIndex="Zoom" ValType="NUMERICAL"/>
            <I ItemIndex="Gain" Attr="KEY_WITH_MSG" DataZone="Cam"/>
            <I ItemIndex="Live" Attr="CONST_TXT" Ctx="NAME_VAL" ShowValue="1"/>
            <I ItemIndex="DeviceType" Attr="STATUS"/> <I ItemIndex="NdiStatus" Attr="STATUS"/>
            <I ItemIndex="Go" Attr="CONFIRM_POP"/>
            <I ItemIndex="IpMode" Attr="MSG_WITH_SUBITEM"> <O ModeIndex="DhcpIp">
                <I ItemIndex="DnsMode" Attr="SUBITEM"> <O ModeIndex="AutoMode"/> <O ModeIndex="Manual"/> </I>
                <I ItemIndex="IpAddr" Attr="EDITABLE"/> </O> <O ModeIndex="StaticIp"/> </I>
            <I ItemIndex="More" Attr="SUBPAGE" SubPage="more"/>
            <I ItemIndex="Apply" Attr="CONFIRM_POP_BTN" ItemPos="Center"/>)",
                "Title='Setup' TitlePos='Left' " + attributes);
    }

    // Redraws with an address being edited and a message line, and gives the picture that was pushed.
    static std::vector<unsigned char> redraw()
    {
        tagPAGE_NODE_S* page = &gstPageMgr.astPage[0];
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press");
        if (const tagITEM_NODE_S* mode = itemAt(page->stItemList, 6); mode != nullptr) {
            tagITEM_NODE_S* address = itemAt(mode->astSubList[0], 1);
            address->bEditing = 1;
            address->s32EditCursor = 7;
        }
        platform().pushes.clear();
        (void)printed([] { EXPECT_EQ(OSD_MENU_RenderCanvas(), 0); });
        return platform().pushes.at(0).pixels;
    }

    static void openMenu()
    {
        (void)printed([] { press("open"); });
    }

    // Lets each call of a name fail alone, as often as an undisturbed action makes it.
    template <typename Action, typename Check>
    static void failEach(const std::vector<std::string>& names, Action action, Check check)
    {
        calls().counts.clear();
        action();
        const std::map<std::string, int> counts = calls().counts;
        check();
        for (const std::string& name : names) {
            ASSERT_TRUE(counts.count(name) != 0) << name << " is never called";
            for (int n = 1; n <= counts.at(name); n++) {
                SCOPED_TRACE(name + " " + std::to_string(n));
                failCall(name, n);
                action();
                calls().failing.clear();
                check();
            }
        }
    }
};

TEST_F(FaultTest, Redraw)
{
    const std::vector<std::string> drawing = {"TTF_SetFontSize",   "TTF_RenderUTF8_Blended",
                                              "SDL_FillRect",      "access",
                                              "SDL_UpperBlit",     "SDL_ConvertSurfaceFormat",
                                              "IMG_Load",          "push",
                                              "rotozoomSurfaceXY", "TTF_SizeUTF8",
                                              "language"};
    const std::vector<std::string> values = {"SDL_CreateRGBSurfaceWithFormat", "text", "translate"};
    for (const std::string layout : {"vertical_align", "vertical_tolvane_align", "vertical_align_keth", "icon"}) {
        setMain("CurPagesNum='1' NextPage='x' CountPerLine='3' Layout='" + layout + "'");
        SCOPED_TRACE(layout);
        openMenu();
        const std::vector<unsigned char> undisturbed = redraw();
        const size_t surfaces = calls().surfaces.size();
        const auto action = [] { (void)redraw(); };
        const auto check = [&] {
            EXPECT_EQ(calls().surfaces.size(), surfaces);
            EXPECT_TRUE(redraw() == undisturbed);
        };
        failEach(drawing, action, check);
        if (layout != "icon") {
            failEach(values, action, check);
        }
        (void)osdMenuReleaseSinglePage();
    }
}

// A page draws on without what can't be drawn; who draws one item alone learns of it.
TEST_F(FaultTest, RendererReportsWhatItCantDraw)
{
    tagITEM_NODE_S item = {};
    setField(item.acItemName, "Gain");
    const size_t surfaces = calls().surfaces.size();
    for (const auto& [draw, size] : {std::pair(&OSD_MENU_RenderVerticalItem, 2), // the call that sets the label's size
                                     {OSD_MENU_RenderVerticalTolvaneItem, 2},
                                     {OSD_MENU_RenderVerticalKETHItem, 1},
                                     {OSD_MENU_RenderTitleKETHItem, 1},
                                     {OSD_MENU_RenderHorizontalItem, 1},
                                     {OSD_MENU_RenderHorizontalItemWithKETH, 1}}) {
        for (const auto& [call, n] : {std::pair("", 1), {"TTF_SetFontSize", size}, {"TTF_RenderUTF8_Blended", 1}}) {
            SDL_Rect cursor = {1, 2, 3, 4};
            int result = 0;
            failCall(call, n);
            (void)printed([&, &draw = draw] { result = draw(&item, &cursor, 1); });
            EXPECT_EQ(result, *call == '\0' ? 0 : -1) << call;
            EXPECT_EQ(cursor.y == 2 && cursor.h == 4, result != 0) << "moves behind a row that is drawn";
        }
    }
    EXPECT_EQ(OSD_MENU_RenderIconText(&item, 1) + OSD_MENU_RenderBelowIcon(&item), 0);
    for (const char* call : {"TTF_SetFontSize", "access", "TTF_RenderUTF8_Blended"}) {
        failCall(call);
        (void)printed([&] { EXPECT_EQ(OSD_MENU_RenderIconText(&item, 1), -1) << call; });
    }
    failCall("access");
    (void)printed([&] { EXPECT_EQ(OSD_MENU_RenderBelowIcon(&item), -1); });
    EXPECT_EQ(calls().surfaces.size(), surfaces);
}

TEST_F(FaultTest, SurfaceGoesWithItsCanvasOrStays)
{
    SDL_Surface* none = nullptr;
    SDL_Surface* surface = gstMenuMgr.pstSurface;
    EXPECT_EQ(OSD_COMM_DestroySurface(nullptr, none), 0);
    EXPECT_EQ(OSD_COMM_DestroySurface(&gstMenuMgr.stCanvas, none), -1);
    EXPECT_EQ(OSD_COMM_DestroySurface(nullptr, surface), -1);
    EXPECT_EQ(surface, gstMenuMgr.pstSurface);
    EXPECT_EQ(platform().blocks.size(), 2u);
}

TEST_F(FaultTest, PageThatCantBeReadIsReported)
{
    char name[] = "page";
    for (const char* text : {"", "<"}) { // first there is no document, then none with a root
        tagPAGE_NODE_S page;
        memset(&page, 0xA5, sizeof page);
        (void)printed([&] { EXPECT_EQ(OSD_MENU_ParseXml(name, &page), -1); });
        EXPECT_EQ(page.stItemList.next, &page.stItemList) << "empty";
        platform().pages[name] = text;
    }
    for (const auto& [attr, text] : {std::pair(CONFIRM, "<I/>"), {CONFIRM_POP, "<I Value='Go'/>"}}) {
        tinyxml2::XMLDocument button; // first without its text, then without its page
        ASSERT_EQ(button.Parse(text), tinyxml2::XML_SUCCESS);
        tagITEM_NODE_S item = {};
        item.enCtx = NAME_VAL;
        item.enAttr = attr;
        (void)printed([&] { EXPECT_EQ(osdXmlFillItemParam(name, button.RootElement(), &item), -1); });
    }
}

TEST_F(FaultTest, StartFollowsNothingInTheManagers)
{
    tagITEM_NODE_S* own = itemAt(openPage("<I ItemIndex='Gain'/>")->stItemList, 0); // the host's to free
    memset(&gstPageMgr.astPage[1], 0x5A, sizeof gstPageMgr.astPage[1]);
    memset(&gstMenuMgr, 0x5A, sizeof gstMenuMgr);
    failCall("create");
    EXPECT_EQ(init(), -1);
    EXPECT_EQ(joined(linesOf({"push", "free", "release", "close"}), ", "),
              "free canvas, release menu_scale, release menu_mem, close bold, close plain")
        << "of the start before";
    EXPECT_STREQ(own->acItemIndex, "Gain");
    EXPECT_EQ(osdMenuReleaseItem(own), 0);
    const auto* bytes = reinterpret_cast<const char*>(&gstPageMgr);
    EXPECT_EQ(std::count(bytes, bytes + sizeof gstPageMgr, '\0'), std::ptrdiff_t{sizeof gstPageMgr});
    EXPECT_EQ(gstMenuMgr.stCanvas.stMem.pvVirAddr, nullptr);
}

TEST_F(FaultTest, CutTakesNoMoreThanOneCharacter)
{
    const std::string letters(29, 'x');
    const std::pair<std::string, size_t> cases[] = {{letters + "xx", 31}, // an option, and the bytes of it that fit
                                                    {letters + "x\u00E9", 30},
                                                    {letters + "\U0001F600", 29},
                                                    {std::string(40, '\x80'), 28}}; // no character at all
    for (const auto& [option, bytes] : cases) {
        setText("Gain", option.c_str(), "");
        EXPECT_EQ(itemAt(openPage("<I ItemIndex='Gain'/>")->stItemList, 0)->acValueKey[0], option.substr(0, bytes));
        EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    }
}

TEST_F(FaultTest, Open)
{
    openMenu();
    const std::vector<unsigned char> undisturbed = redraw();
    (void)osdMenuReleaseSinglePage();
    failEach(
        {"document", "language", "translate", "calloc", "text", "number", "attribute"}, [] { openMenu(); },
        [&] {
            EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
            EXPECT_EQ(liveItems(), 0);
            openMenu();
            EXPECT_TRUE(redraw() == undisturbed);
            EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
        });
}

TEST_F(FaultTest, GarbageFromTheServicesStaysInBounds)
{
    openMenu();
    platform().garbage = true; // first only in what is read again, then from the start
    platform().numbers["Zoom"] = {INT_MAX, INT_MIN, -1, -1, INT_MIN};
    for (auto& [key, text] : platform().texts) {
        memset(&text, 'x', sizeof text);
        memset(text.acList, ':', 100); // more pieces than an item has options
    }
    for (int round = 0; round < 2; round++) {
        (void)printed([] {
            char key[] = "Zoom";
            EXPECT_EQ(OSD_MENU_RefreshItem(key), 0);
            EXPECT_EQ(OSD_MENU_RefreshPage(), 0);
        });
        (void)redraw();
        (void)printed([] { EXPECT_EQ(OSD_MENU_RefreshCurrentPage(), 0); });
    }
    EXPECT_EQ(gstPageMgr.astPage[0].s32ItemCnt, 9);
    for (const tagITEM_NODE_S* item : itemsOf(gstPageMgr.astPage[0])) {
        EXPECT_LT(strnlen(item->acItemName, OSD_TEXT_LEN), 32u);
        EXPECT_LE(item->s32ValCnt, 32);
        for (int option = 0; item->enValType != NUMERICAL && option < item->s32ValCnt; option++) {
            EXPECT_LT(strnlen(item->acValue[option], OSD_TEXT_LEN), 32u) << item->acItemIndex;
        }
    }
}

TEST_F(FaultTest, Keys)
{
    openMenu();
    const std::vector<unsigned char> undisturbed = redraw();
    (void)press("close");
    const auto walk = [] {
        (void)printed([] { // confirm, language, address
            press(
                "open up home home up home right left menu up home right up home set down down down right right right");
            press("home home menu advanced close");
        });
    };
    const auto check = [&] {
        EXPECT_EQ(liveItems(), 0);
        EXPECT_EQ(calls().surfaces.size(), 1u);
        openMenu();
        EXPECT_TRUE(redraw() == undisturbed);
        (void)printed([] { press("close"); });
    };
    failEach({"language", "document", "push"}, walk, check);
    for (const char* page : {"confirm", "more", "main"}) {
        const std::string whole = platform().pages.at(page);
        for (const char* broken : {"", "<", "<P/>", "<P Layout='vertical_align'><I/></P>"}) {
            platform().pages[page] = broken;
            walk();
            platform().pages[page] = whole;
            check();
        }
    }
}
