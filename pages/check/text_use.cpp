#include "pages/check/text_use.h"

#include <algorithm>
#include <tuple>

#include "menu/core/value_status.h"
#include "pages/check/attributes.h"
#include "pages/check/own_words.h"

namespace pages {
namespace {

struct Part {
    On on;
    tagATTR_ID_E attribute;
    const char* words;
};

constexpr Part parts[] = {
    {On::Page, ATTR_TITLE, "title of page "},      {On::Page, ATTR_MSG, "message of page "},
    {On::Item, ATTR_ITEM_INDEX, "label on page "}, {On::Item, ATTR_VALUE, "button on page "},
    {On::Item, ATTR_MSG, "message on page "},      {On::Option, ATTR_MODE_INDEX, "option on page "},
};

using Uses = std::map<std::string, std::vector<TextUse>>;

/// Pages, items and options go by their depth.
void add_uses(const PageFile& page, const Element& element, On on, Uses& uses)
{
    for (const Part& part : parts) {
        const Attribute* attribute = part.on == on ? element.find(osdAttrName(part.attribute)) : nullptr;
        if (attribute != nullptr) {
            uses[attribute->value].push_back({attribute->place, part.words + page.name});
        }
    }
    for (const auto& child : element.children) {
        add_uses(page, *child, on == On::Item ? On::Option : On::Item, uses);
    }
}

void add_options(const Setting& setting, Uses& uses)
{
    for (const std::string& option : setting.options) {
        uses[option].push_back({setting.place, "option of setting " + setting.id.key});
    }
}

void add_facts(const Definitions& definitions, Uses& uses)
{
    for (std::size_t i = 0; osdStatusKey(i).pcKey != nullptr; ++i) {
        const auto fact = definitions.facts.find(osdStatusKey(i).pcKey);
        if (osdStatusKey(i).bTranslated && fact != definitions.facts.end()) {
            const Place place = definitions.places.of("/facts/" + fact->first);
            uses[fact->second].push_back({{"settings.json", place.line, place.column}, "value of fact " + fact->first});
        }
    }
}

} // namespace

Uses text_uses(const ResourceFolder& folder)
{
    Uses uses;
    for (const auto& [name, page] : folder.pages) {
        if (page.root != nullptr) {
            add_uses(page, *page.root, On::Page, uses);
        }
    }
    for (const auto& [id, setting] : folder.definitions.settings) {
        add_options(setting, uses);
    }
    add_facts(folder.definitions, uses);
    for (const char* word : own_words) {
        uses[word].push_back({{}, "shown by the menu itself"});
    }
    const auto place = [](const TextUse& use) { return std::tie(use.place.file, use.place.line); };
    for (auto& [key, places] : uses) {
        std::stable_sort(places.begin(), places.end(),
                         [&](const TextUse& a, const TextUse& b) { return place(a) < place(b); });
    }
    return uses;
}

} // namespace pages
