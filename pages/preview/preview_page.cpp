#include "pages/preview/preview_page.h"

#include <nlohmann/json.hpp>
#include <preview_page.inc> // made of page.html

#include "pages/preview/html.h"

namespace pages {
namespace {

const char* word_of(Change change)
{
    return change == Change::Changed ? "changed" : change == Change::Added ? "new" : "gone";
}

} // namespace

std::string folder_of(const View& view)
{
    return view.language + "/style" + std::to_string(view.style) + "-" + size_name(view.uhd);
}

std::string preview_page(const std::vector<Shot>& shots, const std::vector<View>& views, const Changes& changes,
                         bool compared)
{
    nlohmann::json data;
    data["compared"] = compared;
    data["shots"] = nlohmann::json::array();
    for (const Shot& shot : shots) {
        data["shots"].push_back({{"page", shot.page}, {"label", label_of(shot)}, {"file", shot.file + ".png"}});
    }
    data["views"] = nlohmann::json::array();
    for (const View& view : views) {
        data["views"].push_back({{"folder", folder_of(view)},
                                 {"language", view.language},
                                 {"style", std::to_string(view.style)},
                                 {"size", size_name(view.uhd)}});
    }
    data["changes"] = nlohmann::json::object();
    for (const auto& [file, change] : changes) {
        data["changes"][file] = word_of(change);
    }
    return filled_in(preview_page_html, "DATA", for_script(data));
}

} // namespace pages
