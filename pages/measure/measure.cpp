#include "pages/measure/measure.h"

#include "pages/measure/glyphs.h"
#include "pages/measure/judge.h"
#include "pages/measure/states.h"

namespace pages {
namespace {

bool is_wanted(const std::set<std::string>& wanted, const std::string& name)
{
    return wanted.empty() || wanted.count(name) == 1;
}

/// A start of the menu costs more than a page: language by language in each style and size.
std::vector<View> views_of(const ResourceFolder& folder, const MeasureOptions& options)
{
    std::vector<View> views;
    for (std::uint32_t look = 0; look < 2 * style_count; ++look) {
        for (const auto& [language, texts] : folder.languages) {
            if (is_wanted(options.languages, language)) {
                views.push_back({language, look % style_count, look >= style_count});
            }
        }
    }
    return views;
}

void measure_page(Menu& menu, Recorder& recorder, const PageFile& page, Judge& judge)
{
    menu.close_all();
    (void)menu.open(page.name); // a page that can't be read as a whole is told of by others, its beginning shows
    const Nodes nodes = tree_of(*menu.top(), *page.root);
    for_each_state(*menu.top(), nodes, [&] {
        judge.take(page, menu.view(), explain(*menu.top(), nodes, *page.root, recorder.draw(menu)));
    });
}

} // namespace

Measures measure(const ResourceFolder& folder, const MeasureOptions& options)
{
    Judge judge(folder);
    const std::vector<View> views = views_of(folder, options);
    if (views.empty()) {
        return {};
    }
    Menu menu(folder, views.front());
    Recorder recorder;
    for (const View& view : views) {
        menu.look(view);
        for (const auto& [name, page] : folder.pages) {
            if (page.root != nullptr && is_wanted(options.pages, name)) {
                measure_page(menu, recorder, page, judge);
            }
        }
    }
    menu.close_all();
    Measures measures{judge.findings(), judge.rooms()};
    const std::vector<Finding> glyphs = missing_glyphs(folder);
    measures.findings.insert(measures.findings.end(), glyphs.begin(), glyphs.end());
    return measures;
}

std::vector<TextRoom> text_rooms(const ResourceFolder& folder, const std::string& language)
{
    return measure(folder, {{}, {language}}).rooms;
}

} // namespace pages
