// Times a redraw of the library against the bare calls, and the opening of a page against tinyxml2 alone. Both run in
// turn in one process, in swapped order; what counts is the median of the ratios of neighbours. One line a
// configuration; for run_bench.py.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/bare_redraw.h"
#include "bench/camera.h"

namespace {

using Work = std::function<void()>;

struct Pairing {
    double first_us;  // median of the first work
    double second_us; // median of the second
    double ratio;     // median of first / second, pair by pair
};

constexpr const char* format_names[] = {"argb1555", "argb4444", "argb8888"};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// The work alone; what puts things back runs outside of the clock.
double time_us(const Work& work, const Work& put_back, int repeats)
{
    std::chrono::duration<double, std::micro> took(0);
    for (int i = 0; i < repeats; i++) {
        const auto start = std::chrono::steady_clock::now();
        work();
        took += std::chrono::steady_clock::now() - start;
        put_back();
    }
    return took.count() / repeats;
}

Pairing compare(const Work& first, const Work& second, const Work& put_back, int pairs, int repeats)
{
    std::vector<double> first_us;
    std::vector<double> second_us;
    std::vector<double> ratios;
    for (int i = -2; i < pairs; i++) { // two pairs to warm up
        double a = 0.0;
        double b = 0.0;
        if (i % 2 == 0) {
            a = time_us(first, put_back, repeats);
            b = time_us(second, put_back, repeats);
        } else {
            b = time_us(second, put_back, repeats);
            a = time_us(first, put_back, repeats);
        }
        if (i >= 0) {
            first_us.push_back(a);
            second_us.push_back(b);
            ratios.push_back(a / b);
        }
    }
    return {median(first_us), median(second_us), median(ratios)};
}

std::vector<unsigned char> canvas_pixels()
{
    const SDL_Surface* surface = gstMenuMgr.pstSurface;
    const auto* begin = static_cast<const unsigned char*>(surface->pixels);
    return {begin, begin + static_cast<std::ptrdiff_t>(surface->pitch) * surface->h};
}

// The yardstick is one only if it draws the same picture.
bool is_same_picture(const bench::BareRedraw& bare)
{
    OSD_MENU_RenderCanvas();
    const auto by_library = canvas_pixels();
    SDL_memset(gstMenuMgr.pstSurface->pixels, 0, by_library.size());
    bare.draw();
    return canvas_pixels() == by_library;
}

bool time_redraw(std::FILE* out, bool is_4k, uint32_t format, int rows, int pairs)
{
    if (bench::start_library(is_4k, format) != 0) {
        return false;
    }
    bench::open_page(bench::rows_page(rows));
    const bench::BareRedraw bare(bench::make_rows(rows));
    if (!is_same_picture(bare)) {
        std::fprintf(out, "the bare calls draw another picture\n");
        return false;
    }
    const Pairing result = compare([] { OSD_MENU_RenderCanvas(); }, [&] { bare.draw(); }, [] {}, pairs, 1);
    std::fprintf(out, "redraw %d %s %s %.1f %.1f %.4f\n", rows, is_4k ? "4k" : "1080p", format_names[format],
                 result.first_us, result.second_us, result.ratio);
    std::fflush(out);
    bench::close_page();
    return true;
}

void time_open(std::FILE* out, int pairs)
{
    const std::string page = bench::camera_page;
    const std::string file = bench::file_of(page);
    const Work open = [&] { bench::open_page(page); };
    const Work load = [&] { bench::load_document(file).reset(); };
    const Pairing result = compare(open, load, bench::close_page, pairs, 20);
    std::fprintf(out, "open %s %.2f %.2f %.4f\n", bench::camera_page, result.first_us, result.second_us, result.ratio);
}

} // namespace

int main()
{
    std::FILE* out = bench::split_output();
    const bench::PageFolder folder;
    if (OSD_MENU_InitOpensourceRes() != 0) {
        std::fprintf(out, "the library does not start\n");
        return 1;
    }
    constexpr int redraw_pairs = 100;
    constexpr int open_pairs = 1000;
    for (const bool is_4k : {false, true}) {
        for (const uint32_t format : {0U, 1U, 2U}) {
            for (const int rows : bench::row_counts) {
                if (!time_redraw(out, is_4k, format, rows, redraw_pairs)) {
                    return 1;
                }
            }
        }
    }
    time_open(out, open_pairs);
    return 0;
}
