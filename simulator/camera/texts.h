// What the camera says, in each of its languages.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "simulator/base/data.h"

namespace sim {

class Texts {
public:
    /// Reads the files of these languages, by their names; what can't be used of them is left out.
    Texts(const std::filesystem::path& folder, const std::map<std::string, std::string>& languages);

    /// The text of a key; null when there is none.
    const std::string* find(const std::string& language, const std::string& key) const;
    /// The same for the menu: what is missing is reported, once a key. Live values are asked for as well: what begins
    /// with no letter, such as an address, is no key and not reported.
    const std::string* translate(const std::string& language, const std::string& key);

    /// Puts other texts in the place of those of a language. False when they say the same.
    bool replace(const std::string& language, pages::Texts texts);
    bool has(const std::string& language) const { return languages_.count(language) > 0; }
    /// The texts of a language that there is.
    const pages::Texts& of(const std::string& language) const { return languages_.at(language); }

private:
    std::map<std::string, pages::Texts> languages_;
    std::set<std::string> missing_;
};

} // namespace sim
