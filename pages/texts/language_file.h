// Files of texts in the order and the groups in which the English one has them.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "pages/data/resource_folder.h"

namespace pages {

/// The language that all others are translated from.
constexpr const char* source_language = "English";

struct SourceText {
    std::string key;
    std::string english;
    bool first_of_group; ///< a blank line goes before it
};

/// The English texts in the order of their file. Throws BadInput when the file can't be used as a whole.
std::vector<SourceText> source_texts(const ResourceFolder& folder);

/// The content of a file with a text for each of the source, by key, and what an older file of it allows the check.
std::string language_file(const std::vector<SourceText>& source, const std::map<std::string, std::string>& texts,
                          const std::filesystem::path& older = {});

/// The texts of a language without their places; empty for a language that there isn't. Throws BadInput when its file
/// can't be used as a whole, as nothing of it may be lost.
std::map<std::string, std::string> texts_of(const ResourceFolder& folder, const std::string& language);

} // namespace pages
