// Records what the library calls of SDL and its companions, with all that it hands over, and makes the same calls again
// with nothing around them: the yardstick of a redraw.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace bench {

using Objects = std::vector<void*>;

struct Call {
    std::string_view name;
    std::function<void(Objects&)> repeat;
};

struct Record {
    std::vector<Call> calls; // in their order, and tests of files among them; none that SDL makes itself
    Objects objects;         // surfaces, fonts and files by number; a call that makes one fills its place anew
    int allocations = 0;     // made outside of SDL, its companions and the camera's services
};

Record record(const std::function<void()>& work);

void replay(Record& record);

} // namespace bench
