#include "pages/data/words.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <numeric>

namespace pages {
namespace {

bool are_alike(char one, char other)
{
    return std::tolower(static_cast<unsigned char>(one)) == std::tolower(static_cast<unsigned char>(other));
}

/// How many letters are too many, missing, others or swapped; those that differ in case alone count a quarter.
double distance(const std::string& one, const std::string& other)
{
    std::vector<std::vector<double>> far(one.size() + 1, std::vector<double>(other.size() + 1));
    std::iota(far.front().begin(), far.front().end(), 0.0);
    for (std::size_t i = 1; i <= one.size(); ++i) {
        far[i][0] = static_cast<double>(i);
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const double other_letter = one[i - 1] == other[j - 1]            ? 0.0
                                        : are_alike(one[i - 1], other[j - 1]) ? 0.25
                                                                              : 1.0;
            far[i][j] = std::min({far[i - 1][j - 1] + other_letter, far[i - 1][j] + 1.0, far[i][j - 1] + 1.0});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1]) {
                far[i][j] = std::min(far[i][j], far[i - 2][j - 2] + 1.0);
            }
        }
    }
    return far.back().back();
}

} // namespace

std::string on_one_line(const std::string& words)
{
    std::string line;
    for (const char letter : words) {
        std::array<char, 8> code{};
        if (letter == '\n' || letter == '\t') {
            line += letter == '\n' ? "\\n" : "\\t";
        } else if (static_cast<unsigned char>(letter) < ' ' || letter == '\x7F') {
            (void)std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(letter));
            line += code.data();
        } else {
            line += letter;
        }
    }
    return line;
}

std::string joined(const std::vector<std::string>& words)
{
    std::string all;
    for (const std::string& word : words) {
        all += (all.empty() ? "" : ", ") + word;
    }
    return all;
}

std::string nearest_word(const std::string& word, const std::vector<std::string>& known)
{
    std::string nearest;
    double least = std::max(1.0, static_cast<double>(word.size()) / 3.0);
    for (const std::string& candidate : known) {
        const bool is_begin = word.size() > 2 && candidate.compare(0, word.size(), word) == 0;
        const double far = is_begin ? std::min(1.0, distance(word, candidate)) : distance(word, candidate);
        if (far <= least && (nearest.empty() || far < least)) {
            least = far;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string one_of(const std::string& word, const std::vector<std::string>& known)
{
    const std::string nearest = nearest_word(word, known);
    if (known.size() == 1) {
        return "'" + known.front() + "'";
    }
    return nearest.empty() ? "one of " + joined(known) : "'" + nearest + "' (one of " + joined(known) + ")";
}

std::string nearest_or(const std::string& word, const std::vector<std::string>& known, const std::string& otherwise)
{
    const std::string nearest = nearest_word(word, known);
    return nearest.empty() ? otherwise : "'" + nearest + "'";
}

} // namespace pages
