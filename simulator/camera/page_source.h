// Where the menu's page files come from.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace tinyxml2 {
class XMLDocument;
}

namespace sim {

class PageSource {
public:
    /// A folder of the user's own, or an empty path, goes before the resources.
    PageSource(std::filesystem::path resources, std::filesystem::path own)
        : resources_(std::move(resources)), own_(std::move(own))
    {
    }

    /// The document of a page: from the user's folder when that has a file of the same name, else the text that was kept
    /// for it, else from its file in the resources. Null, with file and line in the log, when it can't be had.
    std::unique_ptr<tinyxml2::XMLDocument> open(const std::filesystem::path& path) const;

    /// From now on the menu reads this text as the page, whatever its file holds. False when it did so before.
    bool keep(const std::string& name, const std::string& text);
    bool is_kept(const std::string& name) const { return kept_.count(name) > 0; }

private:
    std::filesystem::path resources_;
    std::filesystem::path own_;
    std::map<std::string, std::string> kept_; ///< by name
};

} // namespace sim
