#include "simulator/core/page_files.h"

#include <algorithm>
#include <system_error>
#include <tinyxml2.h>

#include "simulator/core/log.h"

namespace sim {

std::unique_ptr<tinyxml2::XMLDocument> load_page_document(const std::filesystem::path& path)
{
    auto document = std::make_unique<tinyxml2::XMLDocument>();
    if (document->LoadFile(path.c_str()) == tinyxml2::XML_SUCCESS) {
        return document;
    }
    const int line = document->ErrorLineNum(); // 0 when the file could not be read at all
    const std::string place = path.string() + (line > 0 ? ":" + std::to_string(line) : "");
    log_line(LogLevel::Error, "pages", place + ": " + document->ErrorStr());
    return nullptr;
}

std::vector<std::string> page_names(const std::filesystem::path& resources)
{
    const std::string ending = "_page.xml";
    std::vector<std::string> names;
    std::error_code error; // a missing folder has no pages
    for (const auto& entry : std::filesystem::directory_iterator(resources / "menu", error)) {
        const std::string name = entry.path().filename().string();
        if (name.size() > ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0) {
            names.push_back(name.substr(0, name.size() - ending.size()));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace sim
