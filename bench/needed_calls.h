// How many calls of each function a picture needs. A replay repeats a call too many as faithfully as any other one, so
// these are fixed numbers.
#pragma once

#include <string>
#include <vector>

#include "bench/recorder.h"

namespace bench {

struct Difference {
    std::string function;
    int more; // calls than needed; negative for fewer
};

// Where the record of a case differs from what its picture needs.
std::vector<Difference> differences(const std::string& name, const Record& record);

} // namespace bench
