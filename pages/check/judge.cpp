#include "pages/check/judge.h"

#include <algorithm>
#include <tuple>

#include "pages/grammar/cases.h"
#include "pages/grammar/page_walk.h"
#include "pages/menu/menu.h"

namespace pages {
namespace {

/// The rule that a kind of fault belongs to, and its words.
struct FaultKind {
    tagPAGE_FAULT_E kind;
    const char* rule;
    const char* what; ///< behind the attribute and its value
};

constexpr FaultKind fault_kinds[] = {{PAGE_FAULT_ABSENT, "missing-attribute", "is missing"},
                                     {PAGE_FAULT_TOO_LONG, "length", "has more than 31 bytes"},
                                     {PAGE_FAULT_WORD, "word", "means nothing to the menu"},
                                     {PAGE_FAULT_NUMBER, "number", "is no number"},
                                     {PAGE_FAULT_NO_TEXT, "missing-text", "has no text in some language"},
                                     {PAGE_FAULT_OPTIONS, "options", "has more than 32 options"}};

const FaultKind& kind_of_fault(const Fault& fault)
{
    return *std::find_if(std::begin(fault_kinds), std::end(fault_kinds),
                         [&](const FaultKind& row) { return row.kind == fault.kind; });
}

using PlaceKey = std::tuple<std::string, int, int>;

PlaceKey key_of_place(const Place& place) { return {place.file, place.line, place.column}; }

class Judge {
public:
    Judge(const ResourceFolder& folder, const std::vector<Finding>& told) : folder_(folder), told_(told)
    {
        for (const Finding& finding : told) {
            (finding.severity == Severity::Error ? wrong_ : odd_).insert(key_of_place(finding.place));
        }
    }

    Verdict judge()
    {
        for (const auto& [language, texts] : folder_.languages) {
            Menu menu(folder_, language);
            for (const auto& [name, page] : folder_.pages) {
                hear(menu, page);
            }
        }
        return std::move(verdict_);
    }

private:
    void hear(Menu& menu, const PageFile& page)
    {
        const bool refused = page.root == nullptr || !menu.open(page.name);
        menu.close_all();
        bool is_explained = false;
        for (const Fault& fault : menu.parse(page)) {
            if (fault.element != nullptr && !is_told(fault)) {
                tell(fault);
            }
            is_explained = is_explained || fault.element != nullptr;
        }
        if (refused && verdict_.refused.insert(page.name).second && !is_explained && !has_error(page.file)) {
            verdict_.findings.push_back(
                {{page.file}, Severity::Error, "xml-reader", "the menu can't show the page", ""});
        }
    }

    bool has_error(const std::string& file) const
    {
        return std::any_of(told_.begin(), told_.end(), [&](const Finding& finding) {
            return finding.severity == Severity::Error && finding.place.file == file;
        });
    }

    /// Whether the cause is known: an error at the element or one of its attributes, anything at the very place, a layout
    /// that is for other items, a text that is missing in all or in some languages, or a page with a long name.
    bool is_told(const Fault& fault) const
    {
        const Element& element = *fault.element;
        const PlaceKey place = key_of_place(element.place_of(fault.attribute));
        if (odd_.count(place) > 0 || wrong_.count(key_of_place(element.place)) > 0 || is_below_told(element) ||
            contradiction_of(page_of(element))) {
            return true;
        }
        const bool long_page = fault.kind == PAGE_FAULT_TOO_LONG && folder_.pages.count(fault.value) > 0;
        return long_page || (fault.kind == PAGE_FAULT_NO_TEXT && is_text_told(fault.value)) ||
               std::any_of(
                   element.attributes.begin(), element.attributes.end(),
                   [&](const Attribute& attribute) { return wrong_.count(key_of_place(attribute.place)) > 0; }) ||
               has_odd_context(element);
    }

    /// Whether the text of a key is told missing or unusable, at whatever place; each that some languages have and others
    /// lack is.
    bool is_text_told(const std::string& key) const
    {
        const auto has_text = [&key](const auto& language) { return language.second.count(key) > 0; };
        return std::any_of(folder_.languages.begin(), folder_.languages.end(), has_text) ||
               std::any_of(told_.begin(), told_.end(), [&](const Finding& finding) {
                   const bool of_texts =
                       finding.rule == "missing-text" || finding.rule == "translation" || finding.rule == "text";
                   return of_texts && words_of(finding).find("'" + key + "'") != std::string::npos;
               });
    }

    /// Whether it is part of something that stands wrong.
    static bool is_below_told(const Element& element)
    {
        const Element* above = &element;
        while (above != nullptr && !is_misplaced(*above)) {
            above = above->parent;
        }
        return above != nullptr;
    }

    void tell(const Fault& fault)
    {
        const FaultKind& kind = kind_of_fault(fault);
        const std::string value = fault.has_value ? " '" + fault.value + "'" : "";
        const Place& place = fault.element->place_of(fault.attribute);
        verdict_.findings.push_back({place, Severity::Error, kind.rule, fault.attribute + value + " " + kind.what, ""});
    }

    const ResourceFolder& folder_;
    const std::vector<Finding>& told_;
    std::set<PlaceKey> wrong_; ///< places of errors
    std::set<PlaceKey> odd_;   ///< places of warnings
    Verdict verdict_;
};

} // namespace

Verdict judge_pages(const ResourceFolder& folder, const std::vector<Finding>& told)
{
    return Judge(folder, told).judge();
}

} // namespace pages
