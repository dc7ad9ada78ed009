// Times each redraw of the library against the bare calls, and the opening of a page against tinyxml2 alone. Both run
// in turn in one process, in swapped order; what counts is the median of the ratios of neighbours. One line a
// configuration; for run_bench.py.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/camera.h"
#include "bench/cases.h"
#include "osd_prompt.h"

namespace {

using Work = std::function<void()>;

struct Pairing {
    double first_us;  // median of the first work
    double second_us; // median of the second
    double ratio;     // median of first / second, pair by pair
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Processor time of this thread: others may use the machine too, and neither side waits for anything.
double now_us()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

// What asking the clock twice adds to a sample: much, against the opening of a page.
double clock_us()
{
    static const double cost = [] {
        std::vector<double> costs;
        for (int i = 0; i < 1000; i++) {
            const double start = now_us();
            costs.push_back(now_us() - start);
        }
        return median(costs);
    }();
    return cost;
}

// The work alone; what puts things back runs outside of the clock.
double time_us(const Work& work, const Work& put_back, int repeats)
{
    const double clock = clock_us(); // not within the sample: it measures, the first time
    double took = 0.0;
    for (int i = 0; i < repeats; i++) {
        const double start = now_us();
        work();
        took += now_us() - start - clock;
        put_back();
    }
    return took / repeats;
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

// Short samples are closer neighbours, but must be long against the clock's own cost.
constexpr double sample_us = 1000.0;
constexpr double budget_us = 4e6; // for one case, as far as the fewest pairs allow
constexpr double fewest_pairs = 100.0;
constexpr double most_pairs = 600.0;

Pairing compare_redraw(const bench::Case& measured)
{
    const Work by_bare_calls = [&] { bench::draw_bare(measured.bare); };
    const double once_us = time_us(
        by_bare_calls, [] {}, 1);
    const int repeats = std::max(1, static_cast<int>(sample_us / once_us));
    const double pairs = std::clamp(budget_us / (2.0 * once_us * repeats), fewest_pairs, most_pairs);
    return compare(
        measured.by_library, by_bare_calls, [] {}, static_cast<int>(pairs), repeats);
}

std::FILE* own = nullptr;
std::string only; // the one thing to measure; empty for all

bool is_wanted(std::string_view name) { return only.empty() || only == name; }

bool time_case(const bench::Case& measured, const char* size, const char* format)
{
    if (!bench::is_same_picture(measured)) {
        std::fprintf(own, "fault %s: the bare calls draw another picture\n", measured.name.c_str());
        return false;
    }
    const Pairing result = compare_redraw(measured);
    std::fprintf(own, "redraw %s %s %s %.1f %.1f %.4f\n", measured.name.c_str(), size, format, result.first_us,
                 result.second_us, result.ratio);
    std::fflush(own);
    return true;
}

bool time_pages(bool is_4k, uint32_t format)
{
    if (bench::start_library(is_4k, format) != 0) {
        return false;
    }
    bool is_fine = true;
    for (const bench::Page& page : bench::pages()) {
        if (is_wanted(page.name)) {
            const bench::Case measured = bench::page_case(page);
            is_fine = time_case(measured, is_4k ? "4k" : "1080p", bench::format_names[format]) && is_fine;
        }
    }
    bench::close_page();
    return is_fine;
}

bool time_zoom()
{
    const bool is_fine = time_case(bench::zoom_case(), "4k", "argb4444");
    OSD_PROMPT_HideZoomRatio();
    return is_fine;
}

void time_open()
{
    constexpr int pairs = 1000;
    const std::string page = bench::camera_page;
    const std::string file = bench::file_of(page);
    const Work open = [&] { bench::open_page(page); };
    const Work load = [&] { bench::load_document(file).reset(); };
    const Pairing result = compare(open, load, bench::close_page, pairs, 20);
    std::fprintf(own, "open %s %.2f %.2f %.4f\n", bench::camera_page, result.first_us, result.second_us, result.ratio);
}

} // namespace

// With the name of a page, "zoom" or "open" this alone.
int main(int argc, char** argv)
{
    own = bench::split_output();
    only = argc > 1 ? argv[1] : "";
    const bench::PageFolder folder;
    if (OSD_MENU_InitOpensourceRes() != 0) {
        std::fprintf(own, "the library does not start\n");
        return 1;
    }
    bool is_fine = true;
    for (const bool is_4k : {false, true}) {
        for (const uint32_t format : bench::measured_formats) {
            is_fine = time_pages(is_4k, format) && is_fine;
        }
    }
    is_fine = (!is_wanted("zoom") || time_zoom()) && is_fine;
    if (is_wanted("open")) {
        time_open();
    }
    return is_fine ? 0 : 1;
}
