#include "simulator/camera/page_source.h"

#include <tinyxml2.h>
#include <utility>

#include "simulator/base/data.h"
#include "simulator/base/page_files.h"

namespace sim {

std::unique_ptr<tinyxml2::XMLDocument> PageSource::open(const std::filesystem::path& path) const
{
    const std::filesystem::path own = own_ / path.filename();
    if (!own_.empty() && std::filesystem::exists(own)) {
        return load_page_document(own);
    }
    const auto kept = kept_.find(page_name(path));
    if (kept != kept_.end()) {
        return parse_page_document(kept->second);
    }
    const std::filesystem::path folder = page_folder(resources_);
    return load_page_document(std::filesystem::is_directory(folder) ? folder / path.filename() : path);
}

bool PageSource::keep(const std::string& name, const std::string& text)
{
    std::string& kept = kept_[name];
    return std::exchange(kept, text) != text;
}

} // namespace sim
