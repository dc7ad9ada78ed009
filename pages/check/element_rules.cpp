// Which elements a page file holds, and what stands between them.
#include "pages/check/rule_tables.h"

#include <tinyxml2.h>

#include "pages/grammar/page_walk.h"

namespace pages {
namespace {

/// "<Page>", "<Item>" or "<Option>"
std::string tag_of(On role) { return std::string("<") + name_of(role) + ">"; }

/// Tells of the outermost of what stands wrong: what is below follows from it.
void tell_misplaced(const Element& element, const Complain& complain)
{
    if (is_misplaced(element)) {
        complain(element.place, "<" + element.name + "> stands where the menu reads another element",
                 tag_of(role_of(element)) + (role_of(element) == On::Option ? " around it" : ""));
        return;
    }
    if (!is_blind(element)) {
        for (const auto& child : element.children) {
            tell_misplaced(*child, complain);
        }
    }
}

void find_misplaced(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile&, const Element& root) { tell_misplaced(root, complain); });
}

void find_strange_names(const ResourceFolder& folder, const Complain& complain)
{
    for_each_read(folder, [&](const Element& element) {
        if (element.name != name_of(role_of(element))) {
            complain(element.place, "<" + element.name + "> is read as " + tag_of(role_of(element)),
                     tag_of(role_of(element)));
        }
    });
}

void find_unread(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (is_blind(item) && !item.children.empty()) {
            complain(item.children.front()->place,
                     "the menu reads nothing below an item with Attr '" + item.value("Attr") + "'",
                     "Attr 'SUBITEM' or 'MSG_WITH_SUBITEM' on line " + std::to_string(item.place.line));
        }
    });
}

void find_stray_texts(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile&, const Element& root) {
        for_each_element(root, [&](const Element& element) {
            if (!element.texts.empty()) {
                complain(element.texts.front(), "the menu doesn't read text between elements",
                         "elements and comments alone in <" + element.name + ">");
            }
        });
    });
}

/// What to do about the mistakes that the menu's reader alone finds.
struct Remedy {
    tinyxml2::XMLError error;
    const char* what;
    const char* expected;
};
constexpr Remedy remedies[] = {
    {tinyxml2::XML_ERROR_PARSING_DECLARATION, "the menu can't load a file with <?...?> here",
     "none but <?xml ...?> on the first line"},
    {tinyxml2::XML_ELEMENT_DEPTH_EXCEEDED, "the menu can't load a file with so many elements in each other", "fewer"}};

/// The reader knows the line; the fault stands behind the blanks that it begins with.
Place place_on_line(const PageFile& page, int line)
{
    std::size_t begin = 0;
    for (int i = 1; i < line && begin != page.text.npos; ++i) {
        begin = page.text.find('\n', begin + 1);
    }
    const std::size_t at = page.text.find_first_not_of(" \t\r\n", begin);
    return {page.file, line, begin >= at ? 1 : static_cast<int>(at - begin + (line == 1 ? 1 : 0))};
}

void tell_unloadable(const PageFile& page, const tinyxml2::XMLDocument& document, const Complain& complain)
{
    const Place place = place_on_line(page, document.ErrorLineNum());
    for (const Remedy& remedy : remedies) {
        if (remedy.error == document.ErrorID()) {
            complain(place, remedy.what, remedy.expected);
            return;
        }
    }
    complain(place, std::string("the menu can't load the file: ") + document.ErrorName(),
             "plain elements and comments");
}

/// The menu reads the file by itself, the check by another reader: both must see the same.
void tell_other_reading(const tinyxml2::XMLElement* read, const Element& element, const Complain& complain)
{
    if (read == nullptr || read->Name() != element.name) {
        complain(element.place, "the menu finds another element here",
                 "<" + element.name + "> without entities around");
        return;
    }
    for (const Attribute& attribute : element.attributes) {
        const char* value = read->Attribute(attribute.name.c_str());
        if (value == nullptr || value != attribute.value) {
            complain(attribute.place,
                     "the menu reads " + attribute.name + " as '" + (value == nullptr ? "" : value) + "'",
                     "a value without line break, tab or entity");
        }
    }
    const tinyxml2::XMLElement* child = read->FirstChildElement();
    for (const auto& twin : element.children) {
        tell_other_reading(child, *twin, complain);
        child = child == nullptr ? nullptr : child->NextSiblingElement();
    }
}

void find_unloadable(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        tinyxml2::XMLDocument document;
        if (document.Parse(page.text.data(), page.text.size()) != tinyxml2::XML_SUCCESS) {
            tell_unloadable(page, document, complain);
        } else {
            tell_other_reading(document.RootElement(), root, complain);
        }
    });
}

} // namespace

const std::vector<Rule>& element_rules()
{
    static const std::vector<Rule> rules = {
        {"nesting", Severity::Error, "A page holds items, an item options, an option items.", find_misplaced},
        {"element-name", Severity::Warning, "Elements are named Page, Item and Option.", find_strange_names},
        {"unread-element", Severity::Warning, "Options stand below items that have some.", find_unread},
        {"stray-text", Severity::Warning, "No text stands between elements.", find_stray_texts},
        {"xml-reader", Severity::Error, "The menu's own reader takes the file, and reads the same.", find_unloadable,
         Told::Alone},
    };
    return rules;
}

} // namespace pages
