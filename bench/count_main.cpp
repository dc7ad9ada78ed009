// Counts what each redraw and the opening of a page cost, one line each; for run_bench.py.
#include <cstdio>
#include <cstring>
#include <string>

#include "bench/call_count.h"
#include "bench/camera.h"
#include "bench/cases.h"
#include "osd_prompt.h"

namespace {

using bench::Counts;

std::FILE* own = nullptr;

// Calls by name that one side makes and the other doesn't. More by the library is waste; more by the bare calls would
// make the yardstick too easy.
int count_more(const std::string& prefix, const Counts& one, const Counts& other)
{
    int more = 0;
    for (const auto& [name, count] : one.calls) {
        const auto found = other.calls.find(name);
        const int others = found != other.calls.end() ? found->second : 0;
        if (count > others) {
            std::fprintf(own, "more %s %s %d %d\n", prefix.c_str(), name.c_str(), count, others);
            more += count - others;
        }
    }
    return more;
}

int total(const Counts& counts)
{
    int sum = 0;
    for (const auto& [name, count] : counts.calls) {
        sum += count;
    }
    return sum;
}

// Nothing of a first time is counted: the pictures are compared before.
bool count_case(const bench::Case& measured, const char* size, const char* format)
{
    if (!bench::is_same_picture(measured)) {
        std::fprintf(own, "fault %s: the bare calls draw another picture\n", measured.name.c_str());
        return false;
    }
    bench::start_counting();
    measured.by_library();
    const Counts library_counts = bench::stop_counting();
    bench::start_counting();
    bench::draw_bare(measured.bare);
    const Counts bare_counts = bench::stop_counting();
    const int surplus = count_more(measured.name + " library", library_counts, bare_counts);
    const int spare = count_more(measured.name + " bare", bare_counts, library_counts);
    std::fprintf(own, "redraw %s %s %s %d %d %d %d %d\n", measured.name.c_str(), size, format, total(library_counts),
                 total(bare_counts), surplus, spare, library_counts.allocations);
    return true;
}

bool count_pages(bool is_4k, uint32_t format)
{
    if (bench::start_library(is_4k, format) != 0) {
        return false;
    }
    bool is_fine = true;
    for (const bench::Page& page : bench::pages()) {
        is_fine = count_case(bench::page_case(page), is_4k ? "4k" : "1080p", bench::format_names[format]) && is_fine;
    }
    return is_fine;
}

bool count_all()
{
    bool is_fine = true;
    for (const bool is_4k : {false, true}) {
        for (const uint32_t format : bench::measured_formats) {
            is_fine = count_pages(is_4k, format) && is_fine;
        }
    }
    is_fine = count_case(bench::zoom_case(), "4k", "argb4444") && is_fine;
    OSD_PROMPT_HideZoomRatio();
    return is_fine;
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

void count_open()
{
    bench::open_page(bench::camera_page); // once before, so that nothing of a first time is counted
    bench::start_counting();
    bench::open_page(bench::camera_page);
    const Counts counts = bench::stop_counting();
    std::fprintf(own, "open %s items %d allocations %d\n", bench::camera_page,
                 count_list(&gstPageMgr.astPage[0].stItemList), counts.allocations);
}

} // namespace

// With "instructions" the redraw of ten rows alone, for callgrind to look at.
int main(int argc, char** argv)
{
    own = bench::split_output();
    const bench::PageFolder folder;
    if (OSD_MENU_InitOpensourceRes() != 0 || bench::start_library(false, 2) != 0) {
        std::fprintf(own, "the library does not start\n");
        return 1;
    }
    if (argc > 1 && std::strcmp(argv[1], "instructions") == 0) {
        bench::open_page(bench::counted_page);
        OSD_MENU_RenderCanvas();
        return 0;
    }
    const bool is_fine = count_all();
    count_open();
    bench::close_page();
    return is_fine ? 0 : 1;
}
