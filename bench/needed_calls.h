// How many calls of each function a picture needs. A replay repeats a call too many as faithfully as any other one, so
// these are fixed numbers.
#pragma once

#include <string_view>
#include <vector>

#include "bench/recorder.h"

namespace bench {

struct Difference {
    std::string_view function;
    int made;
    int needed;
};

// Where the record of a case differs from what it needs.
std::vector<Difference> differences(std::string_view name, const Record& record);

} // namespace bench
