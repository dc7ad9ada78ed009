#include "pages/preview/selection.h"

#include "pages/data/words.h"

namespace pages {
namespace {

std::string checked_language(const std::string& wanted, const ResourceFolder& folder)
{
    const std::string name = language_named(folder.definitions, wanted);
    if (folder.languages.count(name) == 0) {
        throw BadInput("no language '" + wanted + "', expected " + one_of(name, keys_of(folder.languages)));
    }
    return name;
}

} // namespace

Selection checked(const Selection& selection, const ResourceFolder& folder)
{
    Selection result = selection;
    result.languages.clear();
    for (const std::string& language : selection.languages) {
        result.languages.insert(checked_language(language, folder));
    }
    for (const std::string& page : selection.pages) {
        if (folder.pages.count(page) == 0) {
            throw BadInput("no page '" + page + "', expected " + one_of(page, keys_of(folder.pages)));
        }
    }
    for (const std::uint32_t style : selection.styles) {
        if (style >= style_count) {
            throw BadInput("no style " + std::to_string(style) + ", expected " + style_words);
        }
    }
    if (folder.languages.empty()) {
        throw BadInput("resources " + folder.root.string() + " hold no language: lang/ has no file that can be used");
    }
    return result;
}

bool takes_page(const Selection& selection, const std::string& page)
{
    return selection.pages.empty() || selection.pages.count(page) > 0;
}

std::vector<View> views_of(const Selection& selection, const ResourceFolder& folder)
{
    std::vector<View> views;
    for (View& view : all_views(folder)) {
        if ((selection.languages.empty() || selection.languages.count(view.language) > 0) &&
            (selection.styles.empty() || selection.styles.count(view.style) > 0) &&
            selection.uhd.value_or(view.uhd) == view.uhd) {
            views.push_back(std::move(view));
        }
    }
    return views;
}

View first_view(const Selection& selection, const ResourceFolder& folder)
{
    View view;
    view.style = selection.styles.empty() ? 0 : *selection.styles.begin();
    view.uhd = selection.uhd.value_or(false);
    const auto setting = folder.definitions.settings.find(language_setting);
    const auto named = folder.definitions.languages.find(
        setting == folder.definitions.settings.end() ? "" : setting->second.default_text);
    const bool usable = named != folder.definitions.languages.end() && folder.languages.count(named->second) > 0;
    view.language = !selection.languages.empty() ? *selection.languages.begin()
                    : usable                     ? named->second
                                                 : folder.languages.begin()->first;
    return view;
}

} // namespace pages
