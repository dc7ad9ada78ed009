// What can't be used, and where it stands.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "pages/data/words.h"

namespace pages {

/// A place in a file; line and column count from 1, 0 where they aren't known. The column counts bytes.
struct Place {
    std::string file;
    int line = 0;
    int column = 0;
};

/// "FILE:LINE:COLUMN", as far as it is known.
inline std::string to_string(const Place& place)
{
    std::string words = place.file;
    for (const int number : {place.line, place.column}) {
        if (number == 0) {
            break;
        }
        words += ":" + std::to_string(number);
    }
    return words;
}

/// What the user gave can't be used. The text is one line: where, what is wrong, what was expected. Exit status 2.
/// Anything else that is thrown is a failure of the program itself, exit status 1.
class BadInput : public std::runtime_error {
public:
    explicit BadInput(const std::string& words) : BadInput(Place(), words) {}
    BadInput(Place place, const std::string& words)
        : std::runtime_error((place.file.empty() ? "" : to_string(place) + ": ") + on_one_line(words)),
          place_(std::move(place)), words_(on_one_line(words))
    {
    }

    const Place& place() const { return place_; }
    /// The text without the place.
    const std::string& words() const { return words_; }

private:
    Place place_;
    std::string words_;
};

} // namespace pages
