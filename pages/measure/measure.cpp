#include "pages/measure/measure.h"

#include "pages/measure/glyphs.h"
#include "pages/measure/judge.h"
#include "pages/measure/states.h"

namespace pages {
namespace {

/// A start of the menu costs more than a page: language by language in each style and size.
std::vector<View> views_of(const ResourceFolder& folder)
{
    std::vector<View> views;
    for (std::uint32_t look = 0; look < 2 * style_count; ++look) {
        for (const auto& [language, texts] : folder.languages) {
            views.push_back({language, look % style_count, look >= style_count});
        }
    }
    return views;
}

std::vector<const PageFile*> pages_of(const ResourceFolder& folder, const std::string& language, const Wanted& wanted)
{
    std::vector<const PageFile*> pages;
    for (const auto& [name, page] : folder.pages) {
        if (page.root != nullptr && (!wanted || wanted(page, language))) {
            pages.push_back(&page);
        }
    }
    return pages;
}

void measure_page(Menu& menu, Recorder& recorder, const PageFile& page, const std::vector<std::string>& answers,
                  Judge& judge)
{
    menu.close_all();
    (void)menu.open(page.name); // a page that can't be read as a whole is told of by others, its beginning shows
    const Nodes nodes = tree_of(*menu.top(), *page.root, answers);
    for_each_state(*menu.top(), nodes, [&] {
        judge.take(page, menu.view(), explain(*menu.top(), nodes, *page.root, recorder.draw(menu)));
    });
}

} // namespace

Measures measure(const ResourceFolder& folder, const Wanted& wanted)
{
    const std::vector<View> views = views_of(folder);
    if (views.empty()) {
        return {};
    }
    Judge judge(folder);
    const std::vector<std::string> answers = host_answers(folder);
    Menu menu(folder, views.front());
    Recorder recorder;
    for (const View& view : views) {
        const std::vector<const PageFile*> pages = pages_of(folder, view.language, wanted);
        if (!pages.empty()) {
            menu.look(view);
        }
        for (const PageFile* page : pages) {
            measure_page(menu, recorder, *page, answers, judge);
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
    return measure(folder, [&](const PageFile&, const std::string& other) { return other == language; }).rooms;
}

} // namespace pages
