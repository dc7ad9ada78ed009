// How messages put what an author wrote, and what was expected.
#pragma once

#include <string>
#include <vector>

namespace pages {

/// Words in which line breaks and other control characters are written as "\n" and the like: a message is one line.
std::string on_one_line(const std::string& words);

/// "a, b, c"
std::string joined(const std::vector<std::string>& words);

/// "'Lable', expected 'Label'" hints: the known word that is nearest to a misspelt one, or none of them, empty then.
std::string nearest_word(const std::string& word, const std::vector<std::string>& known);

/// What was expected in place of a word: "'Gain' (one of Gain, Hue)" with the nearest one, or "one of Gain, Hue".
std::string one_of(const std::string& word, const std::vector<std::string>& known);

/// "'Gain'" as the nearest of many words, or else the other words.
std::string nearest_or(const std::string& word, const std::vector<std::string>& known, const std::string& otherwise);

/// The keys of a map from names, in their order.
template <typename Map>
std::vector<std::string> keys_of(const Map& map)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : map) {
        keys.push_back(key);
    }
    return keys;
}

} // namespace pages
