// Exact comparison with reference pictures in tests/golden.
#pragma once

#include <SDL.h>
#include <gtest/gtest.h>
#include <string>

namespace fake {

bool& updateGolden(); // --update-golden: write the pictures instead of comparing

// Equal to tests/golden/<name>.png; the failure names the first pixel that differs, and the actual picture is written
// into the working folder.
testing::AssertionResult matchesGolden(SDL_Surface* actual, const std::string& name);

} // namespace fake
