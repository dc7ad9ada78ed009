#include "pages/texts/language_file.h"

#include <algorithm>
#include <nlohmann/json.hpp>

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

std::string language_file(const std::vector<SourceText>& source, const std::map<std::string, std::string>& texts)
{
    const auto quoted = [](const std::string& text) { return nlohmann::json(text).dump(); };
    std::string content;
    for (const SourceText& text : source) {
        content += content.empty() ? "{\n" : text.first_of_group ? ",\n\n" : ",\n";
        content += "    " + quoted(text.key) + ": " + quoted(texts.at(text.key));
    }
    return content + (content.empty() ? "{}\n" : "\n}\n");
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
