// Reference pictures of the vertical list, with the staged fonts and pictures.
#include "tests/fake/golden.h"
#include "tests/fake/menu_test.h"

using namespace fake;

class GoldenTest : public MenuTest {
protected:
    void draw(const Config& config)
    {
        calls().fakeFonts = false;
        calls().fakePictures = false;
        start(config);
        tagPAGE_NODE_S* page = addPage(PAGE_LAYOUT_VERTICAL, "Image");
        addItem(page, "Exposure", NAME_VAL, COMMON, "Automatic")->bActive = 1;
        setRange(addItem(page, "Brightness", NAME_BAR_VAL, COMMON), 0, 100, 1, 60);
        tagITEM_NODE_S* mode = addItem(page, "Address", NAME_VAL, SUBITEM);
        setOptions(mode, {"Dynamic", "Static"}, 1);
        tagITEM_NODE_S* address = addSubItem(mode, 1, "IP address", NAME_IP_VAL, EDITABLE);
        address->enValType = EDITTXT;
        address->bEditing = 1;
        address->s32EditCursor = 8;
        setField(address->acValue[1], "192.168.001.020");
        addItem(page,
                "\xe9\xab\x98\xe7\xba\xa7 / \xc3\x9c"
                "ber",
                NAME, SUBPAGE);
        addItem(page, "Apply", NAME, CONFIRM_POP_BTN)->enItemPos = ITEM_POS_CENTER;
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press Home to apply");
        ASSERT_EQ(OSD_MENU_RenderCanvas(), 0);
    }

    static constexpr tagOSD_MENU_RECT_S PLACE = {0.0f, 0.0f, 0.35f, 0.5f};
};

TEST_F(GoldenTest, SkinsInBothSizes)
{
    for (uint32_t style : {0u, 1u}) {
        for (OSD_BOOL big : {0, 1}) {
            draw({style, 2, big, PLACE, false});
            EXPECT_TRUE(matchesGolden(gstMenuMgr.pstSurface, format("vertical_skin%u_%d", style, big ? 2160 : 1080)));
            stop();
        }
    }
}

TEST_F(GoldenTest, PixelFormatsAgree)
{
    draw({0, 2, 0, PLACE, false});
    SDL_Surface* expected = SDL_DuplicateSurface(gstMenuMgr.pstSurface);
    const std::pair<uint32_t, int> steps[] = {{0, 16}, {1, 34}}; // two steps: background and blend are both cut
    for (const auto& [pixelFormat, step] : steps) {
        stop();
        draw({0, pixelFormat, 0, PLACE, false});
        EXPECT_TRUE(samePixels(gstMenuMgr.pstSurface, expected, step, false)) << pixelFormat;
    }
    SDL_FreeSurface(expected);
}
