// Counts the calls of SDL and its companions by name, and heap allocations made outside of them.
#pragma once

#include <map>
#include <string>

namespace bench {

struct Counts {
    std::map<std::string, int> calls; // made from outside of SDL and its companions
    int allocations = 0;              // made outside of SDL, its companions and the camera's services
};

// Counting is off until the first call; start_counting() begins anew.
void start_counting();
Counts stop_counting();

} // namespace bench
