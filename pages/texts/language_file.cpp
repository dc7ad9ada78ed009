#include "pages/texts/language_file.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "pages/data/allowance.h"
#include "pages/data/json_file.h"

namespace pages {
namespace {

void refuse_mistakes(const ResourceFolder& folder, const std::string& language)
{
    const std::string file = "lang/" + language + ".json";
    for (const BadInput& mistake : folder.mistakes) {
        if (mistake.place().file == file) {
            Place place = mistake.place();
            place.file = (folder.root / file).string();
            throw BadInput(place, mistake.words());
        }
    }
}

} // namespace

std::vector<SourceText> source_texts(const ResourceFolder& folder)
{
    refuse_mistakes(folder, source_language);
    const auto english = folder.languages.find(source_language);
    if (english == folder.languages.end()) {
        throw BadInput(Place{(folder.root / "lang/English.json").string()}, "is missing: it is what gets translated");
    }
    std::vector<const Texts::value_type*> sorted;
    for (const auto& text : english->second) {
        sorted.push_back(&text);
    }
    const auto at = [](const auto* text) { return std::pair(text->second.place.line, text->second.place.column); };
    std::sort(sorted.begin(), sorted.end(), [&](const auto* a, const auto* b) { return at(a) < at(b); });
    std::vector<SourceText> source;
    int last_line = 0;
    for (const auto* text : sorted) {
        const int line = text->second.place.line;
        source.push_back({text->first, text->second.text, !source.empty() && line > last_line + 1});
        last_line = line;
    }
    return source;
}

std::string language_file(const std::vector<SourceText>& source, const std::map<std::string, std::string>& texts,
                          const std::filesystem::path& older)
{
    const auto quoted = [](const nlohmann::json& value) { return value.dump(); };
    const nlohmann::json old = std::filesystem::exists(older) ? load_json_object(older) : nlohmann::json();
    std::string content = "{\n";
    if (old.contains(allowance_member)) {
        content += "    " + quoted(allowance_member) + ": " + quoted(old.at(allowance_member)) + ",\n\n";
    }
    for (const SourceText& text : source) {
        const bool is_last = &text == &source.back();
        content += (text.first_of_group ? "\n    " : "    ") + quoted(text.key) + ": " + quoted(texts.at(text.key));
        content += is_last ? "\n" : ",\n";
    }
    return content + "}\n";
}

std::map<std::string, std::string> texts_of(const ResourceFolder& folder, const std::string& language)
{
    refuse_mistakes(folder, language);
    std::map<std::string, std::string> texts;
    const auto found = folder.languages.find(language);
    if (found != folder.languages.end()) {
        for (const auto& [key, text] : found->second) {
            texts[key] = text.text;
        }
    }
    return texts;
}

} // namespace pages
