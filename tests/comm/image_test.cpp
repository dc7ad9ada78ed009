#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;

#define PIC OSD_RESOURCE_DIR "/pic/"

class ImageTest : public MenuTest {
protected:
    SDL_Surface* image = nullptr;
};

TEST_F(ImageTest, LoadsScalesConverts)
{
    std::string stem = "bar";
    ASSERT_EQ(OSD_COMM_GetImgSurfaceByRect(stem.data(), {7, 9, 300, 50}, &image), 0);
    EXPECT_THAT(calls().lines, ElementsAre("access " PIC "bar.bmp", "load " PIC "bar.bmp", "zoom loaded bar 0 3 0.5 1",
                                           "convert scaled bar 0x15321002", "free loaded bar", "free scaled bar"));
    EXPECT_EQ(image->format->format, 0x15321002u);
    EXPECT_EQ(pixelAt(image, 150, 25), 0xFF0000FFu);
    SDL_FreeSurface(image);
}

TEST_F(ImageTest, ResultHasTheSizeAskedFor)
{
    std::string stem = "bar";
    const struct {
        int w, h;
    } sizes[] = {{100, 100}, {29, 57}, {1, 1}, {107, 60}, {46, 25}, {532, 3}, {311, 15}};
    for (const auto& size : sizes) {
        ASSERT_EQ(OSD_COMM_GetImgSurfaceByRect(stem.data(), {0, 0, size.w, size.h}, &image), 0);
        EXPECT_EQ(image->w, size.w);
        EXPECT_EQ(image->h, size.h);
        SDL_FreeSurface(image);
    }
}

TEST_F(ImageTest, FailuresReleaseInOrder)
{
    const struct {
        const char* call;
        const char* printed;
        std::vector<std::string> freed;
    } cases[] = {
        {"access", "F L failed, acFilePath = " PIC "bar.bmp\n", {}},
        {"IMG_Load", "F L failed\n", {}},
        {"rotozoomSurfaceXY", "F L failed\n", {"free loaded bar"}},
        {"SDL_ConvertSurfaceFormat", "F L failed\n", {"free scaled bar", "free loaded bar"}},
    };
    SDL_Surface* const before = SDL_CreateRGBSurfaceWithFormat(0, 1, 1, 32, SDL_PIXELFORMAT_ARGB8888);
    for (const auto& c : cases) {
        std::string stem = "bar";
        calls().lines.clear();
        failCall(c.call);
        image = before;
        EXPECT_EQ(printed([&] {
                      EXPECT_EQ(OSD_COMM_GetImgSurfaceByRect(stem.data(), {0, 0, 9, 9}, &image), -1);
                  }),
                  c.printed);
        EXPECT_EQ(image, before);
        EXPECT_EQ(linesOf({"free "}), c.freed);
    }
    SDL_FreeSurface(before);
}

TEST_F(ImageTest, OverlongStemIsCutAndNotFound)
{
    std::string stem(200, 's');
    const std::string path = (PIC + stem).substr(0, 126);
    EXPECT_EQ(printed([&] {
                  EXPECT_EQ(OSD_COMM_GetImgSurfaceByRect(stem.data(), {0, 0, 9, 9}, &image), -1);
              }),
              "F L failed, acFilePath = " + path + "\n");
}

TEST_F(ImageTest, PlainLoadTakesAWholePathAndPrintsNothing)
{
    std::string path = "/somewhere/else.png";
    ASSERT_EQ(OSD_COMM_GetImgSurface(path.data(), &image), 0);
    EXPECT_THAT(calls().lines, ElementsAre("load /somewhere/else.png"));
    SDL_FreeSurface(std::exchange(image, nullptr));
    failCall("IMG_Load");
    EXPECT_EQ(printed([&] { EXPECT_EQ(OSD_COMM_GetImgSurface(path.data(), &image), -1); }), "");
    EXPECT_EQ(image, nullptr);
}
