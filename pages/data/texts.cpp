#include "pages/data/texts.h"

#include <algorithm>

#include "osd_types.h"
#include "pages/data/json_file.h"

namespace pages {
namespace {

/// What can't be shown of a text, or no words.
std::string problem_with_text(const std::string& text)
{
    if (text.size() > max_text_bytes) {
        return words_of_length(text) + ", expected at most " + std::to_string(max_text_bytes) + " bytes";
    }
    return text.find('\0') == text.npos ? "" : "'" + text + "' holds a zero byte, expected letters alone";
}

void add_text(const std::string& key, const nlohmann::json& value, const Place& place, Texts& texts)
{
    const std::string key_problem = problem_with_text(key);
    if (!key_problem.empty()) {
        throw BadInput(place, "key " + key_problem);
    }
    if (!value.is_string()) {
        throw BadInput(place, "'" + key + "' is " + words_of_value(value) + ", expected a text, \"...\"");
    }
    const auto text = value.get<std::string>();
    const std::string problem = problem_with_text(text);
    if (!problem.empty()) {
        throw BadInput(place, "'" + key + "': " + problem);
    }
    texts[key] = {text, place};
}

} // namespace

Texts read_texts(const std::filesystem::path& path, std::vector<BadInput>& mistakes, std::vector<Allowance>& allowances)
{
    JsonPlaces places(path.string());
    const nlohmann::json root = load_json_object(path, &places);
    Texts texts;
    for (const auto& [key, value] : root.items()) {
        try {
            if (key == allowance_member) {
                read_allowances(root, places, allowances);
            } else {
                add_text(key, value, places.of("/" + key), texts);
            }
        } catch (const BadInput& mistake) {
            mistakes.push_back(mistake);
        }
    }
    return texts;
}

Texts load_texts(const std::filesystem::path& path)
{
    std::vector<BadInput> mistakes;
    std::vector<Allowance> allowances;
    Texts texts = read_texts(path, mistakes, allowances);
    if (!mistakes.empty()) {
        throw BadInput(mistakes.front());
    }
    return texts;
}

std::string words_of_length(const std::string& text)
{
    const auto is_first = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    const auto letters = std::count_if(text.begin(), text.end(), is_first);
    return "'" + text + "' has " + std::to_string(text.size()) + " bytes (" + std::to_string(letters) + " letters)";
}

} // namespace pages
