#include "tests/fake/menu_test.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "osd_page.h"

namespace fake {

// What no fake sees: descriptors, blocks inside SDL, and files mapped as a fake font.
static std::string held()
{
    const auto descriptors = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::ifstream maps("/proc/self/maps");
    int mapped = 0;
    for (std::string line; std::getline(maps, line);) {
        mapped += line.find(program) != std::string::npos ? 1 : 0;
    }
    return format("%td descriptors, %d blocks, %d mapped", descriptors, SDL_GetNumAllocations(), mapped);
}

void MenuTest::SetUp()
{
    calls() = {};
    platform() = {};
    SDL_ClearError(); // makes the thread's record of errors, which stays
    heldBefore = held();
    calls().recording = true;
}

int MenuTest::init(const Config& config)
{
    tagOSD_MENU_CFG_S record = {config.place, config.format, config.big, config.style};
    return OSD_MENU_InitSdkRes(&record, business, config.parents ? dataZoneParent : nullptr);
}

void MenuTest::start(const Config& config)
{
    ASSERT_EQ(OSD_MENU_InitOpensourceRes(), 0);
    ASSERT_EQ(init(config), 0);
    ASSERT_EQ(Osd_GetVersionCallback(answer, &platform()), 0);
    calls().lines.clear();
}

void MenuTest::stop()
{
    calls().failing.clear();
    while (gstPageMgr.s32PageCnt > 0) {
        (void)osdMenuReleaseSinglePage();
    }
    failCall("create"); // a start that fails gives back what the one before it made
    EXPECT_EQ(init({}), -1);
    gstMenuMgr = {};
    gstPageMgr = {};
    gs_OsdHandler = {};
    enMenuStyle = 0;
}

void MenuTest::TearDown()
{
    stop();
    calls().recording = false;
    EXPECT_EQ(liveItems(), 0);
    EXPECT_EQ(calls().fonts.size(), 0u);
    EXPECT_EQ(platform().blocks.size(), 0u);
    EXPECT_EQ(platform().damaged, 0);
    EXPECT_EQ(platform().documents, 0);
    SDL_ClearHints();
    EXPECT_EQ(held(), heldBefore);
    EXPECT_TRUE(calls().surfaces.empty()) << "surface left: " << calls().surfaces.begin()->second;
    EXPECT_EQ(pthread_mutex_trylock(&g_stMutex), 0) << "the render lock is still held";
    (void)pthread_mutex_unlock(&g_stMutex);
}

tagPAGE_NODE_S* MenuTest::open(std::string name, int expected)
{
    tagPAGE_NODE_S* page = &gstPageMgr.astPage[gstPageMgr.s32PageCnt++];
    EXPECT_EQ(OSD_MENU_ParseXml(name.data(), page), expected) << name;
    return page;
}

tagPAGE_NODE_S* MenuTest::openPage(const std::string& items, const std::string& attributes)
{
    setPage("p", items, attributes);
    return open("p");
}

uint32_t pixelAt(SDL_Surface* surface, int x, int y)
{
    const int bytes = surface->format->BytesPerPixel;
    Uint32 pixel = 0;
    memcpy(&pixel, static_cast<const char*>(surface->pixels) + y * surface->pitch + x * bytes,
           static_cast<size_t>(bytes));
    SDL_Color c;
    SDL_GetRGBA(pixel, surface->format, &c.r, &c.g, &c.b, &c.a);
    return static_cast<uint32_t>(c.a << 24 | c.r << 16 | c.g << 8 | c.b);
}

} // namespace fake
