// Measures each redraw against a replay of its own calls, and the opening of a page against tinyxml2 alone. One line a
// configuration; for run_bench.py.
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

#include "bench/camera.h"
#include "bench/cases.h"
#include "bench/needed_calls.h"
#include "bench/timing.h"
#include "osd_menu.h"
#include "osd_prompt.h"

namespace {

std::FILE* own = nullptr;
std::string only; // the one thing to measure; empty for all

bool is_wanted(std::string_view name) { return only.empty() || only == name; }

// Calls more than the picture needs, and fewer; each function that differs gets a line of its own.
struct Balance {
    int surplus = 0;
    int missing = 0;
};

Balance balance_calls(const std::string& name, const bench::Record& record)
{
    Balance balance;
    for (const bench::Difference& difference : bench::differences(name, record)) {
        std::fprintf(own, "differs %s %s %d\n", name.c_str(), difference.function.c_str(), difference.more);
        (difference.more > 0 ? balance.surplus : balance.missing) += std::abs(difference.more);
    }
    return balance;
}

void measure_case(const bench::Case& measured, const char* size, const char* format)
{
    bench::Record record = bench::record_redraw(measured);
    const Balance balance = balance_calls(measured.name, record);
    const bench::Pairing took = bench::compare(measured.redraw, [&] { bench::replay(record); });
    std::fprintf(own, "redraw %s %s %s %.1f %.1f %.4f %zu %d %d %d\n", measured.name.c_str(), size, format,
                 took.first_us, took.second_us, took.ratio, record.calls.size(), balance.surplus, balance.missing,
                 record.allocations);
}

// A fault of one case leaves the others to be measured.
void measure_redraw(const bench::Case& measured, const char* size, const char* format)
{
    try {
        measure_case(measured, size, format);
    } catch (const std::exception& fault) {
        std::fprintf(own, "fault %s %s %s\n", size, format, fault.what());
    }
    std::fflush(own);
}

bool measure_pages(bool is_4k, uint32_t format)
{
    if (bench::start_library(is_4k, format) != 0) {
        return false;
    }
    for (const bench::Page& page : bench::pages()) {
        if (is_wanted(page.name)) {
            measure_redraw(bench::page_case(page), is_4k ? "4k" : "1080p", bench::format_names[format]);
        }
    }
    bench::close_page();
    return true;
}

void measure_zoom()
{
    measure_redraw(bench::zoom_case(), "4k", "argb4444");
    OSD_PROMPT_HideZoomRatio();
}

int count_below(const tagITEM_NODE_S* item);

int count_list(const list_head* head)
{
    int items = 0;
    for (const list_head* link = head->next; link != nullptr && link != head; link = link->next) {
        const char* start = reinterpret_cast<const char*>(link) - offsetof(tagITEM_NODE_S, stNode);
        items += count_below(reinterpret_cast<const tagITEM_NODE_S*>(start));
    }
    return items;
}

// The item and all items below it, under every option.
int count_below(const tagITEM_NODE_S* item)
{
    int items = 1;
    for (int option = 0; option < item->s32ValCnt && item->enAttr == SUBITEM; option++) {
        items += count_list(&item->astSubList[option]);
    }
    return items;
}

void measure_open()
{
    constexpr int pairs = 1000;
    constexpr int repeats = 20;
    const std::string page = bench::camera_page;
    const std::string file = bench::file_of(page);
    const bench::Work open = [&] { bench::open_page(page); };
    const bench::Work load = [&] { bench::load_document(file).reset(); };
    open(); // once before, so that nothing of a first time is counted
    const int allocations = bench::record(open).allocations;
    const int items = count_list(&gstPageMgr.astPage[0].stItemList);
    const bench::Pairing took = bench::compare(open, load, bench::close_page, pairs, repeats);
    std::fprintf(own, "open %s %.2f %.2f %.4f %d %d\n", page.c_str(), took.first_us, took.second_us, took.ratio, items,
                 allocations);
}

bool measure_all()
{
    for (const bool is_4k : {false, true}) {
        for (const uint32_t format : bench::measured_formats) {
            if (!measure_pages(is_4k, format)) {
                return false;
            }
        }
    }
    if (is_wanted("zoom")) {
        measure_zoom();
    }
    if (is_wanted("open")) {
        measure_open();
    }
    return true;
}

bool redraw_once()
{
    if (bench::start_library(false, bench::measured_formats[1]) != 0) {
        return false;
    }
    bench::open_page(bench::counted_page);
    return OSD_MENU_RenderCanvas() == 0;
}

bool run()
{
    const bench::PageFolder folder;
    return OSD_MENU_InitOpensourceRes() == 0 && (only == "instructions" ? redraw_once() : measure_all());
}

} // namespace

// With the name of a page, "zoom" or "open" this alone; with "instructions" the redraw of ten rows, once, for callgrind
// to look at.
int main(int argc, char** argv)
{
    own = bench::split_output();
    only = argc > 1 ? argv[1] : "";
    if (run()) {
        return 0;
    }
    std::fprintf(own, "the library does not start\n");
    return 1;
}
