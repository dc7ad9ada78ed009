// Runs all tests. --update-golden writes the reference pictures anew instead of comparing with them.
#include <gmock/gmock.h>
#include <string>

#include "tests/fake/golden.h"

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    for (int at = 1; at < argc; at++) {
        if (std::string(argv[at]) != "--update-golden") {
            return 2;
        }
        fake::updateGolden() = true;
    }
    return RUN_ALL_TESTS();
}
