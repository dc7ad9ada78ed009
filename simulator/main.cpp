// camera-sim: a simulated network camera with its on-screen menu.
#include <exception>
#include <iostream>

#include "simulator/base/data.h"
#include "simulator/front/options.h"
#include "simulator/front/run.h"

namespace {

constexpr int status_failed = 1;
constexpr int status_bad_input = 2;

int report(const char* what, int status)
{
    std::cerr << "camera-sim: " << what << std::endl;
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        if (const auto options = sim::parse_options(argc, argv)) {
            return sim::run(*options);
        }
        return 0;
    } catch (const sim::BadInput& error) {
        return report(error.what(), status_bad_input);
    } catch (const std::exception& error) {
        return report(error.what(), status_failed);
    }
}
