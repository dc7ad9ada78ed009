// PO files, as translators' programs read and write them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "pages/data/errors.h"

namespace pages {

struct PoEntry {
    std::string key;
    std::string english;
    std::string translation; ///< empty where there is none yet
    std::string comment;     ///< for the translator, lines that end
    std::vector<Place> uses; ///< where the text stands in the pages
    std::string remark;      ///< of a translator, lines that end
    std::string old_english; ///< for which a fuzzy translation was made; may be empty
    bool fuzzy = false;      ///< the translation may be wrong
    bool obsolete = false;   ///< kept for a text that isn't there any more
    Place place;             ///< in the PO file, when it was read
};

struct PoFile {
    std::string language; ///< the menu's name of it; empty when the file doesn't tell
    PoEntry header;       ///< its fields are the translation; translators' programs have some of their own
    std::vector<PoEntry> entries;
};

/// Fields that the header lacks are added. Throws BadInput when the file can't be written.
void write_po(const PoFile& content, const std::filesystem::path& path);

/// Reads a file. What is wrong with it as a PO file is added to the mistakes; throws BadInput when it can't be read.
PoFile read_po(const std::filesystem::path& path, std::vector<BadInput>& mistakes);

} // namespace pages
