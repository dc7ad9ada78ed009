// Reference pictures of the vertical list, with the staged fonts and pictures.
#include "tests/fake/golden.h"
#include "tests/fake/menu_test.h"

using namespace fake;

class GoldenTest : public MenuTest, public testing::WithParamInterface<std::pair<uint32_t, OSD_BOOL>> {};

TEST_P(GoldenTest, VerticalList)
{
    const auto [style, big] = GetParam();
    calls().fakeFonts = false;
    calls().fakePictures = false;
    start({style, 2, big, {0.0f, 0.0f, 0.35f, 0.5f}, false});
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
    addItem(page, u8"\u9ad8\u7ea7 / \u00dcber", NAME, SUBPAGE);
    addItem(page, "Apply", NAME, CONFIRM_POP_BTN)->enItemPos = ITEM_POS_CENTER;
    page->bKeyMsg = 1;
    setField(page->acKeyMsg, "Press Home to apply");
    ASSERT_EQ(OSD_MENU_RenderCanvas(), 0);
    EXPECT_TRUE(matchesGolden(gstMenuMgr.pstSurface, format("vertical_skin%u_%d", style, big == 1 ? 2160 : 1080)));
}

INSTANTIATE_TEST_SUITE_P(Skins, GoldenTest,
                         testing::Values(std::pair(0u, 0), std::pair(0u, 1), std::pair(1u, 0), std::pair(1u, 1)));
