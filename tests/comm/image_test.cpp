#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;

#define PIC OSD_RESOURCE_DIR "/pic/"

class ImageTest : public MenuTest {
protected:
    int load(std::string stem, SDL_Rect rect) { return OSD_COMM_GetImgSurfaceByRect(stem.data(), rect, &image); }

    SDL_Surface* image = nullptr;
};

TEST_F(ImageTest, LoadsScalesConverts)
{
    ASSERT_EQ(load("bar", {7, 9, 300, 50}), 0);
    EXPECT_THAT(calls().lines, ElementsAre("access " PIC "bar.bmp", "load " PIC "bar.bmp", "zoom loaded bar 0 3 0.5 1",
                                           "convert scaled bar 0x15321002", "free loaded bar", "free scaled bar"));
    EXPECT_EQ(calls().surfaces[image], "bar 300x50");
    EXPECT_EQ(pixelAt(image, 150, 25), 0xFF0000FFu);
    SDL_FreeSurface(image);
}

TEST_F(ImageTest, FailuresReleaseInOrder)
{
    for (const auto& [call, output, freed] :
         {std::tuple("access", "F L failed, acFilePath = " PIC "bar.bmp\n", ""),
          {"IMG_Load", "F L failed\n", ""},
          {"rotozoomSurfaceXY", "F L failed\n", "free loaded bar"},
          {"SDL_ConvertSurfaceFormat", "F L failed\n", "free scaled bar, free loaded bar"}}) {
        calls().lines.clear();
        failCall(call);
        EXPECT_EQ(printed([&] { EXPECT_EQ(load("bar", {0, 0, 9, 9}), -1); }), output);
        EXPECT_EQ(joined(linesOf({"free "}), ", "), freed);
    }
    calls().pictureSize = 0;
    EXPECT_EQ(printed([&] { EXPECT_EQ(load("bar", {0, 0, 9, 9}), -1); }), "F L failed\n") << "nothing to scale";
    EXPECT_EQ(calls().lines.back(), "free loaded bar");
    const std::string stem(200, 's');
    const std::string cut = "F L failed, acFilePath = " + (PIC + stem).substr(0, 126) + "\n";
    EXPECT_EQ(printed([&] { EXPECT_EQ(load(stem, {0, 0, 9, 9}), -1); }), cut);
    EXPECT_EQ(image, nullptr);
}

TEST_F(ImageTest, PlainLoadTakesAWholePathAndPrintsNothing)
{
    std::string path = "/somewhere/else.png";
    ASSERT_EQ(OSD_COMM_GetImgSurface(path.data(), &image), 0);
    EXPECT_THAT(calls().lines, ElementsAre("load /somewhere/else.png"));
    failCall("IMG_Load");
    SDL_Surface* const before = image;
    EXPECT_EQ(printed([&] { EXPECT_EQ(OSD_COMM_GetImgSurface(path.data(), &image), -1); }), "");
    EXPECT_EQ(image, before);
    SDL_FreeSurface(image);
}
