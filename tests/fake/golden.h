// Comparison with reference pictures in tests/golden.
#pragma once

#include <SDL.h>
#include <gtest/gtest.h>
#include <string>

namespace fake {

// Equal to tests/golden/<name>.png; the failure names the first pixel that differs, and the actual picture is written
// into the working folder. In 16 bits a pixel and on x86-64 a picture is equal to the bit. In 32 bits SDL blends with
// other code on other machines: there each channel may be two steps of 255 away, as measured on 64-bit Arm.
testing::AssertionResult matchesGolden(SDL_Surface* actual, const std::string& name);

} // namespace fake
