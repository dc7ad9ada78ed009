// The ways between pages: each leads somewhere, each page is reached, and never too many are open.
#include "pages/check/rule_tables.h"

#include <algorithm>

#include "menu/core/words.h"
#include "osd_types.h"
#include "pages/check/links.h"
#include "pages/grammar/cases.h"

namespace pages {
namespace {

constexpr const char* first_pages[] = {OSD_PAGE_MAIN, OSD_PAGE_ADVANCED}; ///< that a key opens

/// The page that a link to a missing one may mean: another one than its own, and of names like "confirm_image" one whose
/// last part is near.
std::string page_meant(const ResourceFolder& folder, const Link& link)
{
    const std::string name = page_name(link.target);
    const std::string head = name.substr(0, name.rfind('_') + 1);
    std::vector<std::string> parts; // behind the head
    std::vector<std::string> others;
    for (const std::string& page : keys_of(folder.pages)) {
        if (!head.empty() && page.compare(0, head.size(), head) == 0) {
            parts.push_back(page.substr(head.size()));
        } else if (page != link.page->name) {
            others.push_back(page);
        }
    }
    const std::string part = nearest_word(name.substr(head.size()), parts);
    return part.empty() ? nearest_word(name, others) : head + part;
}

void find_broken_links(const ResourceFolder& folder, const Complain& complain)
{
    for (const Link& link : all_links(folder)) {
        if (folder.pages.count(link.target) == 0) {
            const std::string name = page_name(link.target);
            const std::string meant = page_meant(folder, link);
            complain(link.attribute->place, link.attribute->name + ": there is no page '" + link.target + "'",
                     meant.empty() ? "a file " + name + "_page.xml" : "'" + meant + "'");
        }
    }
}

void find_missing_main(const ResourceFolder& folder, const Complain& complain)
{
    if (!folder.pages.empty() && folder.pages.count(OSD_PAGE_MAIN) == 0) {
        complain({page_folder(folder.root).filename().string() + "/"}, "the menu's first page is missing",
                 "a file main_page.xml");
    }
}

/// Opens pages as keys do, one open page more at each step.
class Walk {
public:
    using Stack = std::vector<std::string>; ///< the open pages, bottom first

    explicit Walk(const ResourceFolder& folder)
    {
        for (const Link& link : all_links(folder)) {
            if (!link.is_back() && folder.pages.count(link.target) > 0) {
                links_[link.page->name].push_back(link);
            }
        }
        find_circles();
    }

    /// Links that open a page above itself, whatever leads there: of a circle, the one that leads back.
    const std::vector<Link>& circles() const { return circles_; }

    /// Calls too_deep(link, stack) for a link that would open one page too many, without those that lead back.
    template <typename TooDeep>
    void from(const std::string& first, TooDeep&& too_deep)
    {
        std::map<std::string, Stack> stacks{{first, {first}}}; // by the page on top
        while (!stacks.empty()) {
            std::map<std::string, Stack> higher;
            for (const auto& [top, stack] : stacks) {
                reached_.insert(top);
                for (const Link& link : links_[top]) {
                    if (leads_back(link)) {
                        continue;
                    }
                    if (stack.size() == OSD_PAGE_MAX) {
                        too_deep(link, stack);
                        continue;
                    }
                    Stack next = stack;
                    next.push_back(link.target);
                    higher.emplace(link.target, std::move(next));
                }
            }
            stacks = std::move(higher);
        }
    }

    const std::set<std::string>& reached() const { return reached_; }

private:
    bool leads_back(const Link& link) const
    {
        return std::any_of(circles_.begin(), circles_.end(),
                           [&](const Link& circle) { return circle.attribute == link.attribute; });
    }

    /// Goes as deep as it can, from the first pages on: a link to a page below itself leads back.
    void find_circles()
    {
        Stack stack;
        for (const char* first : first_pages) {
            go_down(first, stack);
        }
    }

    void go_down(const std::string& page, Stack& stack)
    {
        if (!entered_.insert(page).second) {
            return;
        }
        stack.push_back(page);
        for (const Link& link : links_[page]) {
            if (std::count(stack.begin(), stack.end(), link.target) > 0) {
                circles_.push_back(link);
            }
            go_down(link.target, stack);
        }
        stack.pop_back();
    }

    std::map<std::string, std::vector<Link>> links_;
    std::vector<Link> circles_;
    std::set<std::string> entered_;
    std::set<std::string> reached_;
};

void find_sixth_pages(const ResourceFolder& folder, const Complain& complain)
{
    Walk walk(folder);
    std::set<const Attribute*> told;
    for (const Link& link : walk.circles()) {
        if (link.is_next() && link.target == link.page->name) {
            continue; // told as a wrong turn
        }
        complain(link.attribute->place, "page '" + link.target + "' is opened again above itself",
                 "a page that doesn't lead back to '" + link.page->name + "'");
    }
    for (const char* first : first_pages) {
        walk.from(first, [&](const Link& link, const Walk::Stack& stack) {
            if (told.insert(link.attribute).second) {
                std::string way;
                for (const std::string& page : stack) {
                    way += (way.empty() ? "" : " > ") + page;
                }
                complain(link.attribute->place, "a sixth page would open on the way " + stack[0] + " > " + stack[1],
                         "at most 5, without page '" + link.target + "' above " + way);
            }
        });
    }
}

/// Whether an item names the page where that does nothing.
bool is_named_idly(const ResourceFolder& folder, const std::string& page)
{
    bool named = false;
    for_each_item(folder, [&](const Element& item) {
        for (const Attribute& attribute : item.attributes) {
            const AttributeUse* use = attribute.value == page ? find_use(role_of(item), attribute.name) : nullptr;
            named = named || (use != nullptr && use->holds == Holds::Page && !is_read(item, *use));
        }
    });
    return named;
}

/// Whether another rule tells of it: the page turns back to another one, which says otherwise, it is a question and
/// something else is asked, or an item names it and doesn't open it.
bool is_missed(const ResourceFolder& folder, const std::vector<Link>& links, const std::string& page)
{
    const auto is_question_page = [&](const std::string& name) {
        const auto found = folder.pages.find(name);
        return found != folder.pages.end() && found->second.root != nullptr &&
               is_question(layout_of(*found->second.root));
    };
    return is_named_idly(folder, page) || std::any_of(links.begin(), links.end(), [&](const Link& link) {
               const bool turns = link.is_back() && link.page->name == page;
               return turns || (link.is_question() && is_question_page(page) && !is_question_page(link.target));
           });
}

/// Whether all is known that leads from a page: it can be read, no item is passed over, and none may be meant otherwise.
bool is_plain(const PageFile& page)
{
    bool plain = page.root != nullptr;
    if (plain) {
        for_each_element(*page.root, [&](const Element& element) {
            const bool item = role_of(element) == On::Item;
            plain = plain && !is_misplaced(element) && (!is_blind(element) || element.children.empty()) &&
                    missing_in(element).empty() && !(item && (is_idle_icon(element) || has_odd_context(element)));
        });
    }
    return plain;
}

/// A page that is reached from another one that nobody reaches isn't told: one cause.
void find_unreached(const ResourceFolder& folder, const Complain& complain)
{
    const std::vector<Link> links = all_links(folder);
    const bool all_known =
        std::all_of(folder.pages.begin(), folder.pages.end(), [](const auto& page) { return is_plain(page.second); }) &&
        std::all_of(links.begin(), links.end(), [&](const Link& link) { return folder.pages.count(link.target) > 0; });
    if (!all_known || folder.pages.count(OSD_PAGE_MAIN) == 0) {
        return; // another rule tells of what may lead to them
    }
    Walk walk(folder);
    const auto none = [](const Link&, const Walk::Stack&) {};
    for (const char* first : first_pages) {
        walk.from(first, none);
    }
    for (const bool linked : {false, true}) { // those in a circle come last
        for (const auto& [name, page] : folder.pages) {
            const bool has_way = std::any_of(links.begin(), links.end(), [target = name](const Link& link) {
                return link.target == target && link.page->name != target && !link.is_back();
            });
            if (walk.reached().count(name) == 0 && (linked || !has_way)) {
                walk.from(name, none);
                if (!is_missed(folder, links, name)) {
                    complain(page.root->place, "no key leads to page '" + name + "'",
                             "an item that opens it on a page that 'main' or 'advanced' leads to");
                }
            }
        }
    }
}

/// Whether the other page turns to a third one that doesn't turn back to it, or another one to this page: told there.
bool is_told_forwards(const ResourceFolder& folder, const std::vector<Link>& links, const Link& back)
{
    return std::any_of(links.begin(), links.end(), [&](const Link& link) {
        const auto target = folder.pages.find(link.target);
        const bool fits = target != folder.pages.end() && target->second.root != nullptr &&
                          target->second.root->value(osdAttrName(ATTR_PREV_PAGE)) == link.page->name;
        return link.is_next() && !fits && (link.page->name == back.target || link.target == back.page->name);
    });
}

void find_wrong_turns(const ResourceFolder& folder, const Complain& complain)
{
    const std::vector<Link> links = all_links(folder);
    for (const Link& link : links) {
        if (!link.is_back() && !link.is_next()) {
            continue;
        }
        const std::string other = osdAttrName(link.is_back() ? ATTR_NEXT_PAGE : ATTR_PREV_PAGE);
        const auto target = folder.pages.find(link.target);
        const Element* root = target == folder.pages.end() ? nullptr : target->second.root.get();
        if (link.page->root->find(osdAttrName(ATTR_CUR_PAGES_NUM)) == nullptr) {
            complain(link.attribute->place, link.attribute->name + " does nothing without CurPagesNum",
                     "CurPagesNum=\"...\"");
        } else if (link.is_next() && link.target == link.page->name) {
            complain(link.attribute->place, "the page turns to itself", "another page, or no NextPage");
        } else if (root != nullptr && root->value(other) != link.page->name &&
                   !(link.is_back() && is_told_forwards(folder, links, link))) {
            complain(link.attribute->place,
                     "page '" + link.target + "' doesn't turn to this one: its " + other + " is '" +
                         root->value(other) + "'",
                     other + "=\"" + link.page->name + "\" there");
        }
    }
}

} // namespace

const std::vector<Rule>& way_rules()
{
    static const std::vector<Rule> rules = {
        {"no-page", Severity::Error, "A page that another one opens has a file.", find_broken_links, Told::Once},
        {"main-page", Severity::Error, "The menu has its first page.", find_missing_main},
        {"sixth-page", Severity::Error, "At most five pages are open.", find_sixth_pages, Told::Once},
        {"unreached-page", Severity::Warning, "Keys lead to each page.", find_unreached},
        {"turn", Severity::Error, "Pages that turn to each other say so on both sides.", find_wrong_turns},
    };
    return rules;
}

} // namespace pages
