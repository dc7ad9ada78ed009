// The smallest host: it opens the menu and counts what is shown. The argument is what to expect: "open", or "refuse" where
// the library's fonts are not installed.
#include <cstring>

#include "osd_menu.h"
#include "tests/build/host/services.h"

static int pushes = 0;

int main(int, char** argv)
{
    const bool open = std::strcmp(argv[1], "open") == 0;
    g_pushed = [](const tagOSD_MENU_CANVAS_S&) { pushes++; };
    expect("OSD_MENU_InitSdkRes", startMenu(), open ? 0 : -1);
    expect("blocks of memory held", g_blocks, open ? 2 : 0);
    OSD_MENU_OpenMenu();
    expect("pushes", pushes, open ? 1 : 0);
    return g_failures != 0;
}
