// Reference pictures of each layout, with the staged fonts and pictures.
#include "tests/fake/golden.h"
#include "tests/fake/keys.h"
#include "tests/fake/menu_test.h"

using namespace fake;

struct Picture {
    const char *name, *attributes, *items;
    float w, h; // of the menu
};

static const char LIST[] = R"(<I ItemIndex="Exposure" Attr="SUBITEM" PicType="IPTYPE"> <O ModeIndex="Manual">
        <I ItemIndex="Gain" ValType="NUMERICAL"/> </O> <O ModeIndex="Auto"/> </I>
    <I ItemIndex="Address" Attr="EDITABLE"/> <I ItemIndex="曝光模式" Attr="STATUS"/>
    <I ItemIndex="高级 / Über" Attr="SUBPAGE" SubPage="more"/>
    <I ItemIndex="Restart" Attr="CONFIRM_POP_BTN" Line="1" ItemPos="Center"/>)";

static const char POPUP[] = R"(<I ItemIndex="Yes" Attr="CONFIRM" ItemCnt="2"/>
    <I ItemIndex="No" Attr="CONFIRM" ItemCnt="2" ItemIndexOnLine="1"/>)";

static const char GRID[] = R"(
    <I ItemIndex="Image" Ctx="ICON_TXT" Pic="arrow_left" SelectPic="arrow_all" Attr="SUBPAGE" SubPage="image"/>
    <I ItemIndex="Network" Ctx="ICON_TXT" Pic="arrow_right" SelectPic="arrow_all" Attr="SUBPAGE" SubPage="network"/>
    <I ItemIndex="Video" Ctx="ICON_TXT" Pic="arrow_top" Attr="SUBPAGE" SubPage="video"/>
    <I ItemIndex="System" Ctx="ICON_TXT" Pic="nav_arrow" Attr="SUBPAGE" SubPage="system"/>)";

static const Picture TOLVANE = {"tolvane", "Layout='vertical_tolvane_align' Title='Image' TitlePos='Left'", LIST, 0.35f,
                                0.5f};
static const Picture PICTURES[] = {
    TOLVANE,
    {"vertical", "Title='Image' TitlePos='Left'", LIST, 0.35f, 0.5f},
    {"paged", "Layout='vertical_align_keth' Title='Image' TitlePos='Left' CurPagesNum='1/2' NextPage='n'", LIST, 0.35f,
     0.5f},
    {"popup", "Layout='horizontal_align' Title='Restart?' TitlePos='Center'", POPUP, 0.5f, 0.8f},
    {"popup_message", "Layout='horizontal_align_keth' Title='Restart?' TitlePos='Center' Msg='The picture goes dark'",
     POPUP, 0.5f, 0.8f},
    {"icons", "Layout='icon' CountPerLine='3'", GRID, 0.5f, 0.8f}};

class GoldenTest : public MenuTest {
protected:
    void draw(const Picture& picture, uint32_t style, uint32_t pixels, OSD_BOOL big)
    {
        calls().fakeFonts = calls().fakePictures = false;
        platform().translated = "";
        (void)press("Exposure=Manual Address=192.168.1.20");
        setNumber("Gain", 0, 100, 1, 60);
        start({style, pixels, big, {0.0f, 0.0f, picture.w, picture.h}, false});
        (void)SDL_FillRect(gstMenuMgr.pstSurface, nullptr, 0); // a popup leaves the rest as it was
        tagPAGE_NODE_S* page = openPage(picture.items, picture.attributes);
        page->s32SelIdx = 1;
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press Home to apply");
        itemAt(page->stItemList, 1)->bEditing = 1;
        itemAt(page->stItemList, 1)->s32EditCursor = 8;
        ASSERT_EQ(OSD_MENU_RenderCanvas(), 0);
    }
};

TEST_F(GoldenTest, EveryLayoutInEachSkinSizeAndFormat)
{
    const std::tuple<uint32_t, OSD_BOOL, uint32_t, const char*> cases[] = {
        {0, 0, 2, "skin0_1080"}, {1, 0, 0, "skin1_1080_argb1555"}, {0, 1, 1, "skin0_2160_argb4444"}};
    for (const Picture& picture : PICTURES) {
        for (const auto& [style, big, pixels, name] : cases) {
            draw(picture, style, pixels, big);
            EXPECT_TRUE(matchesGolden(gstMenuMgr.pstSurface, format("%s_%s", picture.name, name)));
            stop();
        }
    }
    platform().language = "TraditionalChinese";
    draw(TOLVANE, 0, 2, 0);
    EXPECT_TRUE(matchesGolden(gstMenuMgr.pstSurface, "tolvane_chinese_skin0_1080"));
}

TEST_F(GoldenTest, NoOtherPictureMatches)
{
    draw(TOLVANE, 0, 2, 0);
    SDL_Surface* canvas = gstMenuMgr.pstSurface;
    EXPECT_FALSE(matchesGolden(canvas, "icons_skin0_1080")) << "of another size";
    EXPECT_FALSE(matchesGolden(canvas, "no_such_picture"));
    ASSERT_TRUE(matchesGolden(canvas, "tolvane_skin0_1080"));
    const SDL_Rect corner = {canvas->w - 1, canvas->h - 1, 1, 1};
    (void)SDL_FillRect(canvas, &corner, pixelAt(canvas, corner.x, corner.y) - 0x03); // three steps of blue
    EXPECT_FALSE(matchesGolden(canvas, "tolvane_skin0_1080"));
}
