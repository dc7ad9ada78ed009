#include "pages/map/map_page.h"

#include <algorithm>
#include <map_page.inc> // made of page.html
#include <set>

#include "pages/map/tree.h"
#include "pages/preview/html.h"

namespace pages {
namespace {

std::string base64(const std::string& bytes)
{
    constexpr const char* letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t group = 0;
        for (std::size_t j = i; j < i + 3; ++j) {
            group = group << 8 | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
        }
        const std::size_t used = std::min<std::size_t>(bytes.size() - i, 3);
        for (std::size_t j = 0; j < 4; ++j) {
            text += j <= used ? letters[group >> (18 - 6 * j) & 63] : '=';
        }
    }
    return text;
}

std::string presses(std::size_t count) { return std::to_string(count) + (count == 1 ? " press" : " presses"); }

std::string cell(const std::string& text) { return "<td>" + escaped(text) + "</td>"; }
std::string number_cell(std::size_t number) { return "<td class=\"number\">" + std::to_string(number) + "</td>"; }

std::string chain_of(const std::vector<std::string>& stack)
{
    std::string words;
    for (const std::string& page : stack) {
        words += (words.empty() ? "" : " › ") + page;
    }
    return words;
}

std::string box(const Atlas& atlas, const Spot& place, const Reach& reach, const std::string& keys)
{
    const auto picture = atlas.pictures.find(reach.page);
    const std::string image = picture == atlas.pictures.end()
                                  ? ""
                                  : "<img tabindex=\"0\" alt=\"" + escaped(reach.page) +
                                        "\" src=\"data:image/png;base64," + base64(picture->second) + "\">";
    return "<div class=\"page\" id=\"page-" + escaped(reach.page) + "\" style=\"left:" + std::to_string(place.x) +
           "px;top:" + std::to_string(place.y) + "px\">" + image + "<p><b>" + escaped(reach.page) + "</b><span>" +
           escaped(keys) + "</span><small>" + presses(reach.keys.size()) + "</small></p></div>\n";
}

/// From the right side of a box to the left one of another: a shared trunk with branches, or a curve.
std::string line(const Spot& from, const Spot& to, bool branch, const std::string& words)
{
    const int start = from.x + box_width;
    const std::string middle = std::to_string((start + to.x) / 2);
    const std::string y1 = std::to_string(from.y + box_height / 2);
    const std::string y2 = std::to_string(to.y + box_height / 2);
    const std::string end = std::to_string(to.x);
    const std::string turns = branch ? "H" + middle + "V" + y2 + "H" + end
                                     : "C" + middle + " " + y1 + " " + middle + " " + y2 + " " + end + " " + y2;
    return std::string("<path class=\"") + (branch ? "way" : "other") + "\" d=\"M" + std::to_string(start) + " " + y1 +
           turns + "\"><title>" + escaped(words) + "</title></path>\n";
}

std::string drawing(const Atlas& atlas, const Tree& tree)
{
    std::string lines;
    for (const bool on_tree : {false, true}) { // the shortest ways lie above the others
        for (const Way& way : atlas.walk.ways) {
            const auto from = tree.places.find(way.from);
            const auto to = tree.places.find(way.to);
            const bool both = from != tree.places.end() && to != tree.places.end();
            if (both && tree.is_branch(way) == on_tree) {
                lines += line(from->second, to->second, on_tree, way.from + " › " + way.to + ": " + words_of(way.keys));
            }
        }
    }
    std::string boxes;
    for (const Reach& reach : atlas.walk.pages) {
        boxes += box(atlas, tree.places.at(reach.page), reach, words_of(tree.last_keys(reach)));
    }
    const std::string size = std::to_string(tree.width) + "px;height:" + std::to_string(tree.height) + "px";
    return "<div class=\"map\" style=\"width:" + size + "\"><svg aria-hidden=\"true\" style=\"width:" + size + "\">" +
           lines + "</svg>\n" + boxes + "</div>";
}

std::string finding(const std::string& title, const std::vector<std::string>& entries)
{
    std::string list;
    for (const std::string& entry : entries) {
        list += "<li>" + escaped(entry) + "</li>";
    }
    return "<section class=\"" + std::string(entries.empty() ? "well" : "told") + "\"><h3>" + escaped(title) + " <b>" +
           std::to_string(entries.size()) + "</b></h3>" + (entries.empty() ? "<p>none</p>" : "<ul>" + list + "</ul>") +
           "</section>\n";
}

std::string findings(const Atlas& atlas)
{
    std::vector<std::string> deep;
    for (const auto& stack : atlas.walk.too_deep) {
        deep.push_back(chain_of(stack));
    }
    std::vector<std::string> ends;
    for (const DeadEnd& end : atlas.walk.ends) {
        ends.push_back((end.place.file.empty() ? end.page : to_string(end.place)) + ": " + end.words);
    }
    std::vector<std::string> settings;
    for (const SettingId& id : atlas.without_row) {
        settings.push_back(to_string(id));
    }
    return finding("Pages nobody reaches", atlas.unreached) + finding("Ways deeper than five pages", deep) +
           finding("Ways that end", ends) + finding("Settings that no row changes", settings);
}

std::string page_rows(const Atlas& atlas)
{
    std::string rows;
    for (const Reach& reach : atlas.walk.pages) {
        rows += "<tr>" + cell(reach.page) + number_cell(reach.keys.size()) + cell(words_of(reach.keys)) +
                cell(chain_of(reach.stack)) + "</tr>\n";
    }
    return rows;
}

std::string setting_rows(const Atlas& atlas)
{
    std::string rows;
    for (const ReachedSetting& row : atlas.walk.settings) {
        rows += "<tr>" + cell(row.label) + cell(row.setting.key) + cell(row.page) + number_cell(row.keys.size()) +
                cell(words_of(row.keys)) + "</tr>\n";
    }
    return rows;
}

std::string summary(const Atlas& atlas)
{
    std::size_t most = 0;
    for (const ReachedSetting& row : atlas.walk.settings) {
        most = std::max(most, row.keys.size());
    }
    const std::size_t reached = atlas.walk.pages.size();
    return std::to_string(reached) + " of " + std::to_string(reached + atlas.unreached.size()) +
           " pages are reached, with " + std::to_string(atlas.walk.settings.size()) +
           " rows that change a setting; the farthest needs " + presses(most) + ". " + to_string(atlas.view) + ".";
}

} // namespace

std::string map_page(const Atlas& atlas)
{
    const std::vector<std::pair<const char*, std::string>> parts = {{"SUMMARY", escaped(summary(atlas))},
                                                                    {"FINDINGS", findings(atlas)},
                                                                    {"MAP", drawing(atlas, Tree(atlas.walk))},
                                                                    {"PAGES", page_rows(atlas)},
                                                                    {"SETTINGS", setting_rows(atlas)}};
    std::string page = map_page_html;
    for (const auto& [place, text] : parts) {
        page = filled_in(page, place, text);
    }
    return page;
}

} // namespace pages
