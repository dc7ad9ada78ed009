// The texts of the menu in the camera's languages.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace sim {

/// Keys and texts of all languages, read from "<folder>/<Language>.json", flat files of key to text.
class Translations {
public:
    /// languages: any keys to language names, as in the settings definitions. Throws BadInput with file and key for a
    /// text or key over 31 bytes, the size of a field of the menu.
    Translations(const std::filesystem::path& folder, const std::map<std::string, std::string>& languages);

    /// Reads the languages that it doesn't have yet, all of them or none. Throws as the constructor does.
    void add(const std::map<std::string, std::string>& languages);
    /// Reads one language again, which stays as it was when this throws as the constructor does. False, with nothing
    /// read, for a language that it doesn't have.
    bool reload(const std::string& language);

    /// The text of a key; null when the language or the key is unknown.
    const std::string* find(const std::string& language, const std::string& key) const;

private:
    std::filesystem::path folder_;
    std::map<std::string, std::map<std::string, std::string>> texts_;
};

} // namespace sim
