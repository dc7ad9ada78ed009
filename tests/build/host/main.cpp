// The smallest host: it opens the menu of one page and looks at what is shown. The argument is what to expect: "open", or
// "refuse" where the library's fonts are not installed.
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "osd_menu.h"
#include "tests/build/host/services.h"

namespace {

constexpr const char* PAGE = R"(<Page Layout="vertical_align" Title="Menu" TitlePos="Left">
  <Item ItemIndex="Model" Ctx="NAME" Attr="CONST_TXT"/>
</Page>)";

int pushes = 0;
int whitePixels = 0;

void look(OSD_BOOL, const tagOSD_MENU_CANVAS_S& canvas)
{
    pushes++;
    const auto* pixel = static_cast<const uint32_t*>(canvas.stMem.pvVirAddr);
    for (int i = 0; i < canvas.stMenuRect.w * canvas.stMenuRect.h; i++) {
        whitePixels += (pixel[i] & 0xFFFFFFU) == 0xFFFFFFU ? 1 : 0;
    }
}

} // namespace

int main(int argc, char** argv)
{
    const bool open = argc > 1 && std::strcmp(argv[1], "open") == 0;
    g_page = PAGE;
    g_pushed = look;
    tagOSD_MENU_CFG_S config = {{0.2F, 0.2F, 0.4F, 0.4F}, 2, 0, 0};
    expect("OSD_MENU_InitOpensourceRes", OSD_MENU_InitOpensourceRes(), 0);
    expect("OSD_MENU_InitSdkRes",
           OSD_MENU_InitSdkRes(
               &config, [](tagITEM_NODE_S*) { return 0; }, nullptr),
           open ? 0 : -1);
    expect("blocks of memory held", g_blocks, open ? 2 : 0);
    OSD_MENU_OpenMenu();
    expect("pushes", pushes, open ? 1 : 0);
    expect("white text shown", whitePixels > 0, open);
    return g_failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
