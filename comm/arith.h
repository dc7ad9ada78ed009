// Fractions of lengths: where a formula changes precision, and where it is cut.
#pragma once

#include <SDL.h>

#include <algorithm>
#include <cfloat>
#include <cstdint>

static_assert(FLT_EVAL_METHOD == 0, "layouts count on single precision that is not widened");

// An integer in single precision, before it meets a fraction.
inline float osdF32(int s32Value) { return static_cast<float>(s32Value); }

// Cuts towards zero at the end of a formula; stays in range and gives 0 for what is no number.
inline int osdTruncF64(double f64Value)
{
    if (f64Value >= 2147483647.0) {
        return INT32_MAX;
    }
    if (f64Value <= -2147483648.0) {
        return INT32_MIN;
    }
    return f64Value == f64Value ? static_cast<int>(f64Value) : 0;
}

inline int osdTrunc(float f32Value)
{
    return osdTruncF64(static_cast<double>(f32Value)); // every single is a double, so the cut is the same
}
int osdTrunc(double f64Value) = delete; // a fraction without "f" changes pixels
int osdTrunc(int s32Value) = delete;

// The nearest 32-bit value of a sum or product of numbers that come from outside.
inline int osdClampS32(int64_t s64Value)
{
    if (s64Value > INT32_MAX) {
        return INT32_MAX;
    }
    return s64Value < INT32_MIN ? INT32_MIN : static_cast<int>(s64Value);
}

// Keeps the edges of a rectangle in a range in which SDL, which adds place and size without looking, can't overflow. No
// surface reaches so far, so what is drawn stays the same.
inline SDL_Rect osdRectInRange(const SDL_Rect& stRect)
{
    static constexpr int64_t s64Far = 1 << 29;
    const auto edge = [](int64_t s64At) { return static_cast<int>(std::clamp(s64At, -s64Far, s64Far)); };
    const int s32Left = edge(stRect.x);
    const int s32Top = edge(stRect.y);
    return {s32Left, s32Top, edge(int64_t{stRect.x} + stRect.w) - s32Left, edge(int64_t{stRect.y} + stRect.h) - s32Top};
}
