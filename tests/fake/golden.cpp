#include "tests/fake/golden.h"

#include <SDL_image.h>
#include <cstdlib>

#include "tests/fake/menu_test.h"

namespace fake {

namespace {

bool near(uint32_t left, uint32_t right, int tolerance, bool alpha)
{
    for (int shift = 0; shift < (alpha ? 32 : 24); shift += 8) {
        const int distance = static_cast<int>(left >> shift & 0xFF) - static_cast<int>(right >> shift & 0xFF);
        if (std::abs(distance) > tolerance) {
            return false;
        }
    }
    return true;
}

} // namespace

bool& updateGolden()
{
    static bool update = false;
    return update;
}

testing::AssertionResult samePixels(SDL_Surface* actual, SDL_Surface* expected, int tolerance, bool alpha)
{
    if (actual->w != expected->w || actual->h != expected->h) {
        return testing::AssertionFailure()
               << actual->w << "x" << actual->h << " instead of " << expected->w << "x" << expected->h;
    }
    for (int y = 0; y < actual->h; y++) {
        for (int x = 0; x < actual->w; x++) {
            const uint32_t left = pixelAt(actual, x, y);
            const uint32_t right = pixelAt(expected, x, y);
            if (!near(left, right, tolerance, alpha)) {
                return testing::AssertionFailure() << format("pixel %d,%d is %08x instead of %08x", x, y, left, right);
            }
        }
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult matchesGolden(SDL_Surface* actual, const std::string& name)
{
    const std::string path = OSD_GOLDEN_DIR "/" + name + ".png";
    const bool recording = std::exchange(calls().recording, false);
    SDL_Surface* expected = updateGolden() ? nullptr : IMG_Load(path.c_str());
    testing::AssertionResult result = testing::AssertionSuccess();
    if (updateGolden()) {
        if (IMG_SavePNG(actual, path.c_str()) != 0) {
            result = testing::AssertionFailure() << "cannot write " << path;
        }
    } else {
        result =
            expected != nullptr ? samePixels(actual, expected) : testing::AssertionFailure() << path << " is missing";
        if (!result) {
            (void)IMG_SavePNG(actual, (name + ".actual.png").c_str());
            result << "; the picture drawn is " << name << ".actual.png";
        }
    }
    SDL_FreeSurface(expected);
    calls().recording = recording;
    return result;
}

} // namespace fake
