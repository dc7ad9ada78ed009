#include "bench/timing.h"

#include <algorithm>
#include <ctime>
#include <vector>

namespace bench {
namespace {

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

// Short samples are closer neighbours, but must be long against the clock's own cost.
constexpr double sample_us = 1000.0;
constexpr double budget_us = 4e6; // as far as the fewest pairs allow
constexpr double fewest_pairs = 100.0;
constexpr double most_pairs = 600.0;

} // namespace

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

Pairing compare(const Work& first, const Work& second)
{
    const Work nothing = [] {};
    const double once_us = time_us(second, nothing, 1);
    const int repeats = std::max(1, static_cast<int>(sample_us / once_us));
    const double pairs = std::clamp(budget_us / (2.0 * once_us * repeats), fewest_pairs, most_pairs);
    return compare(first, second, nothing, static_cast<int>(pairs), repeats);
}

} // namespace bench
