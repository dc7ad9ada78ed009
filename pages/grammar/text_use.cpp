#include "pages/grammar/text_use.h"

#include <algorithm>
#include <tuple>

#include "menu/core/value_status.h"
#include "menu/core/words.h"
#include "pages/grammar/cases.h"

namespace pages {
namespace {

/// Texts that the menu asks for by itself, on whatever page.
constexpr const char* own_words[] = {OSD_WORD_STATIC_IP, OSD_WORD_DHCP_IP, OSD_WORD_AUTO_MODE,
                                     OSD_WORD_CONFIRM,   OSD_WORD_FINISH,  OSD_WORD_LOADING};

struct Part {
    tagATTR_ID_E attribute;
    const char* words;
};

constexpr Part parts[] = {{ATTR_TITLE, "title"},
                          {ATTR_MSG, "message"},
                          {ATTR_ITEM_INDEX, "label"},
                          {ATTR_VALUE, "button"},
                          {ATTR_MODE_INDEX, "option"}};

using Uses = std::map<std::string, std::vector<TextUse>>;

std::string words_of_part(const std::string& attribute)
{
    const auto* part = std::find_if(std::begin(parts), std::end(parts),
                                    [&](const Part& one) { return attribute == osdAttrName(one.attribute); });
    return part == std::end(parts) ? attribute : part->words;
}

void add_uses(const PageFile& page, Uses& uses)
{
    for_each_use(*page.root, [&](const Element& element, const Attribute& attribute, const AttributeUse& use) {
        if (use.holds == Holds::Label || use.holds == Holds::Key) {
            const std::string of = element.parent == nullptr ? " of page " : " on page ";
            uses[attribute.value].push_back({attribute.place, words_of_part(attribute.name) + of + page.name});
        }
    });
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
            add_uses(page, uses);
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
