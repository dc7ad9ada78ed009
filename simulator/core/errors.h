// The two ways in which the camera gives up.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>

namespace sim {

/// Words with a mark for each zero byte, at which what() would end.
inline std::string without_zeros(std::string words)
{
    std::replace(words.begin(), words.end(), '\0', '?');
    return words;
}

/// What the user gave can't be used. The text is one line: where, what is wrong, what was expected. Exit status 2.
/// Anything else that is thrown is a failure of the camera itself, exit status 1.
class BadInput : public std::runtime_error {
public:
    explicit BadInput(const std::string& words) : std::runtime_error(without_zeros(words)) {}
};

} // namespace sim
