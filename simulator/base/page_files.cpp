#include "simulator/base/page_files.h"

#include <algorithm>
#include <system_error>
#include <tinyxml2.h>
#include <utility>

#include "simulator/base/log.h"

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

std::unique_ptr<tinyxml2::XMLDocument> parse_page_document(const std::string& text)
{
    auto document = std::make_unique<tinyxml2::XMLDocument>();
    return document->Parse(text.data(), text.size()) == tinyxml2::XML_SUCCESS ? std::move(document) : nullptr;
}

std::vector<std::string> page_names(const std::filesystem::path& resources)
{
    std::vector<std::string> names;
    std::error_code error; // a missing folder has no pages
    for (const auto& entry : std::filesystem::directory_iterator(page_folder(resources), error)) {
        if (is_page_file(entry.path())) {
            names.push_back(page_name(entry.path()));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

void require_page(const std::string& name, const std::filesystem::path& resources)
{
    const std::vector<std::string> names = page_names(resources);
    if (std::count(names.begin(), names.end(), name) > 0) {
        return;
    }
    throw BadInput("unknown page '" + name + "', expected " + one_of(name, names));
}

} // namespace sim
