#include "tests/fake/golden.h"

#include <SDL_image.h>

#include "tests/fake/menu_test.h"

namespace fake {

namespace {

// The first difference of two pictures, or an empty text.
std::string difference(SDL_Surface* actual, SDL_Surface* expected)
{
    if (actual->w != expected->w || actual->h != expected->h) {
        return format("%dx%d instead of %dx%d", actual->w, actual->h, expected->w, expected->h);
    }
    for (int at = 0; at < actual->w * actual->h; at++) {
        const int x = at % actual->w;
        const int y = at / actual->w;
        if (pixelAt(actual, x, y) != pixelAt(expected, x, y)) {
            return format("pixel %d,%d is %08x instead of %08x", x, y, pixelAt(actual, x, y), pixelAt(expected, x, y));
        }
    }
    return "";
}

} // namespace

bool& updateGolden()
{
    static bool update = false;
    return update;
}

testing::AssertionResult matchesGolden(SDL_Surface* actual, const std::string& name)
{
    const bool recording = std::exchange(calls().recording, false);
    const std::string path = OSD_GOLDEN_DIR "/" + name + ".png";
    if (updateGolden()) {
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
