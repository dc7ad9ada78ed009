// What the check of a folder of pages costs, in seconds, the best of some runs each; status 1 for a figure that is worse
// than its gate.
//     bench_pages FOLDER FONTS
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>

#include "pages/check/check.h"

namespace {

using Clock = std::chrono::steady_clock;

bool all_hold = true;

/// Reads the folder anew each time, as the program does.
void report(const char* name, const char** arguments, const pages::CheckOptions& options, double gate)
{
    double best = 1e9;
    for (int run = 0; run < 3; ++run) {
        const auto start = Clock::now();
        (void)pages::check(pages::read_resource_folder(arguments[0], arguments[1]), options);
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
    }
    const bool holds = best < gate;
    all_hold = all_hold && holds;
    std::printf("  %-58s %13.3fs   gate < %-10.1f %s\n", name, best, gate, holds ? "ok" : "MISSED");
}

} // namespace

int main(int argc, const char** argv)
{
    try {
        if (argc != 3) {
            throw std::runtime_error("expected a folder of resources and one of fonts");
        }
        report("check: all pages, languages, styles and sizes", argv + 1, {true, {}}, 10.0);
        report("check of one changed page", argv + 1,
               {true, [](const pages::PageFile& page, const std::string&) { return page.name == "network"; }}, 0.3);
        report("check --quick", argv + 1, {false, {}}, 0.5);
        return all_hold ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_pages: %s\n", error.what());
        return 2;
    }
}
