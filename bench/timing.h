// Compares what two works cost. Both run in turn in one process, in swapped order; what counts is the median of the
// ratios of neighbours.
#pragma once

#include <functional>

namespace bench {

using Work = std::function<void()>;

// Microseconds of processor time.
struct Pairing {
    double first_us;  // median of the first work
    double second_us; // median of the second
    double ratio;     // median of first / second, pair by pair
};

// What puts things back after each work isn't timed.
Pairing compare(const Work& first, const Work& second, const Work& put_back, int pairs, int repeats);

// As many pairs and repeats as suit the time that the second work takes, and nothing to put back.
Pairing compare(const Work& first, const Work& second);

} // namespace bench
