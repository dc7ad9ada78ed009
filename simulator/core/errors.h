// The two ways in which the camera gives up.
#pragma once

#include <stdexcept>

namespace sim {

/// What the user gave can't be used. The text is one line: where, what is wrong, what was expected. Exit status 2.
/// Anything else that is thrown is a failure of the camera itself, exit status 1.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace sim
