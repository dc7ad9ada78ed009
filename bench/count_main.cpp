// Counts what a redraw and the opening of a page cost, one "name value" a line; for run_bench.py.
#include <cstdio>
#include <cstring>
#include <string>

#include "bench/bare_redraw.h"
#include "bench/call_count.h"
#include "bench/camera.h"

namespace {

using bench::Counts;

std::FILE* own = nullptr;

// Calls by name that the library makes and the bare program doesn't.
int count_surplus(const Counts& library, const Counts& bare)
{
    int surplus = 0;
    for (const auto& [name, count] : library.calls) {
        const auto found = bare.calls.find(name);
        const int needed = found != bare.calls.end() ? found->second : 0;
        if (count > needed) {
            std::fprintf(own, "more %s %d %d\n", name.c_str(), count, needed);
            surplus += count - needed;
        }
    }
    return surplus;
}

int total(const Counts& counts)
{
    int sum = 0;
    for (const auto& [name, count] : counts.calls) {
        sum += count;
    }
    return sum;
}

void count_redraw(int rows)
{
    bench::open_page(bench::rows_page(rows));
    OSD_MENU_RenderCanvas(); // once before, so that nothing of a first time is counted
    const bench::BareRedraw bare(bench::make_rows(rows));
    bench::start_counting();
    OSD_MENU_RenderCanvas();
    const Counts library_counts = bench::stop_counting();
    bench::start_counting();
    bare.draw();
    const Counts bare_counts = bench::stop_counting();
    std::fprintf(own, "redraw %d calls %d bare %d surplus %d allocations %d\n", rows, total(library_counts),
                 total(bare_counts), count_surplus(library_counts, bare_counts), library_counts.allocations);
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

// With "instructions" a few redraws of ten rows alone, for callgrind to look at.
int main(int argc, char** argv)
{
    own = bench::split_output();
    const bench::PageFolder folder;
    if (OSD_MENU_InitOpensourceRes() != 0 || bench::start_library(false, 2) != 0) {
        std::fprintf(own, "the library does not start\n");
        return 1;
    }
    if (argc > 1 && std::strcmp(argv[1], "instructions") == 0) {
        bench::open_page(bench::rows_page(10));
        OSD_MENU_RenderCanvas();
        return 0;
    }
    for (const int rows : bench::row_counts) {
        count_redraw(rows);
    }
    count_open();
    bench::close_page();
    return 0;
}
