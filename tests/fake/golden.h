// Exact comparison of surfaces, and with reference pictures in tests/golden.
#pragma once

#include <SDL.h>
#include <gtest/gtest.h>
#include <string>

namespace fake {

bool& updateGolden(); // --update-golden: write the pictures instead of comparing

// Equal within a difference per channel; the failure names the first pixel that differs.
testing::AssertionResult samePixels(SDL_Surface* actual, SDL_Surface* expected, int tolerance = 0, bool alpha = true);

// Equal to tests/golden/<name>.png; otherwise the actual picture is written into the working folder.
testing::AssertionResult matchesGolden(SDL_Surface* actual, const std::string& name);

} // namespace fake
