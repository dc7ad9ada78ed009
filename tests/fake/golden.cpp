#include "tests/fake/golden.h"

#include <SDL_image.h>
#include <algorithm>
#include <cstdlib>

#include "tests/fake/menu_test.h"

namespace fake {

namespace {

#ifdef __x86_64__
constexpr int BLEND_STEPS = 0;
#else
constexpr int BLEND_STEPS = 2;
#endif

bool g_update = false;

// How far the farthest of four channels is away.
int distance(uint32_t one, uint32_t other)
{
    int farthest = 0;
    for (const int shift : {0, 8, 16, 24}) {
        farthest = std::max(farthest, std::abs(int(one >> shift & 0xFF) - int(other >> shift & 0xFF)));
    }
    return farthest;
}

// The first difference of two pictures, or an empty text.
std::string difference(SDL_Surface* actual, SDL_Surface* expected)
{
    const int allowed = actual->format->BytesPerPixel == 2 ? 0 : BLEND_STEPS;
    if (actual->w != expected->w || actual->h != expected->h) {
        return format("%dx%d instead of %dx%d", actual->w, actual->h, expected->w, expected->h);
    }
    for (int at = 0; at < actual->w * actual->h; at++) {
        const uint32_t pixel = pixelAt(actual, at % actual->w, at / actual->w);
        const uint32_t wanted = pixelAt(expected, at % actual->w, at / actual->w);
        if (distance(pixel, wanted) > allowed) {
            return format("pixel %d,%d is %08x instead of %08x", at % actual->w, at / actual->w, pixel, wanted);
        }
    }
    return "";
}

} // namespace

testing::AssertionResult matchesGolden(SDL_Surface* actual, const std::string& name)
{
    const bool recording = std::exchange(calls().recording, false);
    const std::string path = OSD_GOLDEN_DIR "/" + name + ".png";
    if (g_update) {
        EXPECT_EQ(IMG_SavePNG(actual, path.c_str()), 0) << path;
    }
    SDL_Surface* expected = IMG_Load(path.c_str());
    const std::string text = expected != nullptr ? difference(actual, expected) : path + " is missing";
    SDL_FreeSurface(expected);
    calls().recording = recording;
    if (text.empty()) {
        return testing::AssertionSuccess();
    }
    (void)IMG_SavePNG(actual, (name + ".actual.png").c_str());
    return testing::AssertionFailure() << text << "; the picture drawn is " << name << ".actual.png";
}

} // namespace fake

// Runs all tests. --update-golden writes the reference pictures anew before it compares with them.
int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    fake::g_update = argc == 2 && std::string(argv[1]) == "--update-golden";
    return RUN_ALL_TESTS();
}
