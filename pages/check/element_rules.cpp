// Which elements a page file holds, and what stands between them.
#include "pages/check/rule_tables.h"

#include <tinyxml2.h>

#include "pages/check/page_walk.h"

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

void find_unloadable(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile& page, const Element&) {
        tinyxml2::XMLDocument document;
        if (document.Parse(page.text.data(), page.text.size()) != tinyxml2::XML_SUCCESS) {
            complain({page.file, document.ErrorLineNum(), 0},
                     std::string("the menu can't load the file: ") + document.ErrorName(), "");
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
        {"xml-reader", Severity::Error, "The menu's own reader takes the file.", find_unloadable},
    };
    return rules;
}

} // namespace pages
