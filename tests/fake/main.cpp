// Runs all tests. --update-golden writes the reference pictures anew before it compares with them.
#include <gmock/gmock.h>
#include <string>

#include "tests/fake/golden.h"

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    fake::updateGolden() = argc == 2 && std::string(argv[1]) == "--update-golden";
    return RUN_ALL_TESTS();
}
