// A language's way to its translators and back, as a PO file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "pages/data/resource_folder.h"

namespace pages {

struct Exported {
    std::size_t texts;
    std::size_t translated; ///< fuzzy ones don't count
};

/// Writes the texts of a language, with those that it lacks as yet. A file that is there already may hold work: it is an
/// error, or updated on demand. Its translations stay then, fuzzy where the English text has changed, obsolete where it is
/// gone, and so does its header. The folder is as before. Throws BadInput.
Exported export_texts(ResourceFolder& folder, const std::string& language, const std::filesystem::path& file,
                      bool update);

struct Imported {
    std::vector<BadInput> refusals; ///< all that doesn't fit; nothing was written where there is one
    bool usable = true;             ///< whether the file is a PO file at all
    bool changed = false;           ///< whether the language's file was written
};

/// Writes the language's file from a PO file. The folder is as before. Throws BadInput.
Imported import_texts(ResourceFolder& folder, const std::string& language, const std::filesystem::path& file);

/// What an author must still do by hand so that people can choose the language, a sentence each.
std::vector<std::string> left_to_do(const ResourceFolder& folder, const std::string& language);

} // namespace pages
