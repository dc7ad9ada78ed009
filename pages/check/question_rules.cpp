// Questions, and pages whose values wait for one.
#include "pages/check/rule_tables.h"

#include <algorithm>

#include "menu/core/words.h"
#include "menu/nav/confirm_page.h"
#include "pages/check/links.h"
#include "pages/grammar/page_walk.h"

namespace pages {
namespace {

/// Calls visit(link, question) for each question that is asked and can be read.
template <typename Visit>
void for_each_question(const ResourceFolder& folder, Visit&& visit)
{
    for (const Link& link : all_links(folder)) {
        const auto question = folder.pages.find(link.target);
        if (link.is_question() && question != folder.pages.end() && question->second.root != nullptr) {
            visit(link, *question->second.root);
        }
    }
}

void find_mute_questions(const ResourceFolder& folder, const Complain& complain)
{
    for_each_question(folder, [&](const Link& link, const Element& question) {
        const std::string part = OSD_PAGE_PART_CONFIRM;
        const bool on_restart = osdConfirmOnRestart(link.page->name.c_str());
        const bool answered =
            on_restart ? link.target == OSD_PAGE_RESTART : link.target.find(part) != std::string::npos;
        if (!answered && is_question(layout_of(question))) {
            complain(link.attribute->place, "the answers of page '" + link.target + "' do nothing here",
                     on_restart ? std::string("page '") + OSD_PAGE_RESTART + "'"
                                : "a question with '" + part + "' in its name");
        }
    });
}

void find_no_questions(const ResourceFolder& folder, const Complain& complain)
{
    for (const Link& link : all_links(folder)) {
        const auto target = folder.pages.find(link.target);
        if (link.attribute->name == osdAttrName(ATTR_SUB_PAGE) && target != folder.pages.end() &&
            target->second.root != nullptr && is_question(layout_of(*target->second.root))) {
            complain(link.attribute->place, "page '" + link.target + "' is a question, which nobody asks here",
                     "ConfirmPage=\"" + link.target + "\" with Attr=\"CONFIRM_POP_BTN\"");
        }
    }
    for_each_question(folder, [&](const Link& link, const Element& question) {
        if (layout_of(question) && !is_question(layout_of(question))) {
            complain(link.attribute->place, "page '" + link.target + "' is no question",
                     "a page in layout 'horizontal_align' or 'horizontal_align_keth'");
        }
    });
}

std::string key_of(const Element& item) { return item.value(osdAttrName(ATTR_ITEM_INDEX)); }

bool has_answer(const Element& question, const std::string& key)
{
    return std::any_of(question.children.begin(), question.children.end(),
                       [&](const auto& item) { return key_of(*item) == key; });
}

void find_missing_answers(const ResourceFolder& folder, const Complain& complain)
{
    for_each_question(folder, [&](const Link&, const Element& question) {
        std::string missing;
        for (const char* key : {OSD_KEY_NO, OSD_KEY_YES}) {
            if (!has_answer(question, key)) {
                missing += (missing.empty() ? "'" : "' and '") + std::string(key);
            }
        }
        if (is_question(layout_of(question)) && !question.children.empty() && !missing.empty()) {
            complain(question.place, "the question has no button " + missing + "'", "items 'No' and 'Yes'");
        }
    });
}

/// The first answer is selected when the question opens.
void find_hasty_answers(const ResourceFolder& folder, const Complain& complain)
{
    for_each_question(folder, [&](const Link&, const Element& question) {
        const bool both = has_answer(question, OSD_KEY_NO) && has_answer(question, OSD_KEY_YES);
        if (is_question(layout_of(question)) && both && key_of(*question.children.front()) == OSD_KEY_YES) {
            complain(question.children.front()->place, "one press too many says 'Yes'", "'No' as the first answer");
        }
    });
}

void find_opening_answers(const ResourceFolder& folder, const Complain& complain)
{
    for_each_question(folder, [&](const Link&, const Element& question) {
        for (const auto& item : question.children) {
            const bool answers = key_of(*item) == OSD_KEY_NO || key_of(*item) == OSD_KEY_YES;
            if (is_question(layout_of(question)) && answers && (asks(kind_of(*item)) || kind_of(*item) == SUBPAGE)) {
                complain(item->place_of(osdAttrName(ATTR_ATTR)),
                         "'" + key_of(*item) + "' opens a page and answers nothing", "Attr=\"CONFIRM\"");
            }
        }
    });
}

/// The number of answers and the place of each are needed to draw them side by side.
void find_heaped_answers(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile&, const Element& page) {
        const std::string count = std::to_string(page.children.size());
        for (std::size_t i = 0; is_question(layout_of(page)) && i < page.children.size(); ++i) {
            const Element& item = *page.children[i];
            if (item.value(osdAttrName(ATTR_ITEM_CNT)) != count ||
                item.value(osdAttrName(ATTR_ITEM_INDEX_ON_LINE)) != std::to_string(i)) {
                complain(item.place, "answer '" + key_of(item) + "' isn't drawn beside the others",
                         "ItemCnt=\"" + count + "\" ItemIndexOnLine=\"" + std::to_string(i) + "\"");
            }
        }
    });
}

void find_silent_buttons(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (kind_of(item) == CONFIRM_POP && context_of(item) && !has_value(context_of(item))) {
            complain(item.place_of(osdAttrName(ATTR_CTX)), "a CONFIRM_POP without value asks nothing",
                     "Ctx=\"NAME_VAL\", or Attr=\"CONFIRM_POP_BTN\"");
        }
    });
}

std::vector<std::string> confirmed_pages()
{
    std::vector<std::string> names;
    for (std::size_t i = 0; osdConfirmPageName(i) != nullptr; ++i) {
        names.emplace_back(osdConfirmPageName(i));
    }
    return names;
}

bool waits_for_question(const Element& root)
{
    return root.value(osdAttrName(ATTR_CONFIRM_BTN)) == "Yes" && layout_of(root) && !is_question(layout_of(root));
}

bool can_store(const PageFile& page)
{
    static const std::vector<std::string> known = confirmed_pages();
    return std::count(known.begin(), known.end(), page.name) > 0;
}

/// What one rule tells of a whole page.
bool is_never_stored(const PageFile& page, const Element& root) { return waits_for_question(root) && !can_store(page); }

/// Calls visit(page, root, whether the menu can store its values) for the lists whose values wait for a question.
template <typename Visit>
void for_each_confirmed(const ResourceFolder& folder, Visit&& visit)
{
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        if (waits_for_question(root)) {
            visit(page, root, can_store(page));
        }
    });
}

void find_never_stored(const ResourceFolder& folder, const Complain& complain)
{
    for_each_confirmed(folder, [&](const PageFile& page, const Element& root, bool stored) {
        if (!stored) {
            complain(root.place_of(osdAttrName(ATTR_CONFIRM_BTN)),
                     "what is changed on page '" + page.name + "' waits for a question and is never stored",
                     "no ConfirmBtn, which works on " + joined(confirmed_pages()) + " alone");
        }
    });
}

/// The item whose question stores the values of a page; null for none.
const Element* storing_item(const Element& root)
{
    for (const auto& item : root.children) {
        if (key_of(*item) == OSD_KEY_CONFIRM && asks(kind_of(*item))) {
            return item.get();
        }
    }
    return nullptr;
}

void find_no_way_to_store(const ResourceFolder& folder, const Complain& complain)
{
    for_each_confirmed(folder, [&](const PageFile& page, const Element& root, bool stored) {
        if (stored && storing_item(root) == nullptr) {
            complain(root.place, "nothing on page '" + page.name + "' asks whether values are to be stored",
                     "an item 'Confirm' with Attr=\"CONFIRM_POP_BTN\"");
        }
    });
}

void find_behind_store(const ResourceFolder& folder, const Complain& complain)
{
    for_each_confirmed(folder, [&](const PageFile&, const Element& root, bool stored) {
        const Element* confirm = stored ? storing_item(root) : nullptr;
        if (confirm == nullptr) {
            return;
        }
        bool behind = false;
        for (const auto& item : root.children) {
            if (behind && (has_options(kind_of(*item)) || is_one_of(kind_of(*item), {COMMON, KEY_WITH_MSG}))) {
                complain(item->place, "what is changed in '" + key_of(*item) + "' is never stored",
                         "it before item 'Confirm' on line " + std::to_string(confirm->place.line));
            }
            behind = behind || item.get() == confirm;
        }
    });
}

/// How "Yes" stores the values of a page.
struct Storing {
    const char* page;
    int levels;        ///< of items below options
    bool options_only; ///< of settings without parent
};

constexpr Storing storings[] = {{OSD_PAGE_NETWORK, 2, false},
                                {OSD_PAGE_FORMAT, 1, false},
                                {OSD_PAGE_VIDEO, 1, true},
                                {OSD_PAGE_PIP, 0, true},
                                {OSD_PAGE_ROTATE, 0, false}};

int level_of(const Element& item)
{
    int level = 0;
    for (const Element* above = item.parent; above != nullptr; above = above->parent) {
        level += role_of(*above) == On::Option ? 1 : 0;
    }
    return level;
}

void find_unstorable(const ResourceFolder& folder, const Complain& complain)
{
    for_each_confirmed(folder, [&](const PageFile& page, const Element& root, bool) {
        const auto* storing = std::find_if(std::begin(storings), std::end(storings),
                                           [&page](const Storing& one) { return page.name == one.page; });
        for_each_read(root, [&](const Element& element) {
            const bool changed = role_of(element) == On::Item && has_value(context_of(element)) &&
                                 (has_options(kind_of(element)) || is_one_of(kind_of(element), {COMMON, KEY_WITH_MSG}));
            if (!changed || storing == std::end(storings)) {
                return;
            }
            if (level_of(element) > storing->levels) {
                complain(element.place, "what is changed in '" + key_of(element) + "' is never stored",
                         storing->levels == 0 ? "it on page '" + page.name + "' itself"
                                              : "it at most " + counted(storing->levels, "level") + " below options");
            } else if (storing->options_only &&
                       (context_of(element) == NAME_BAR_VAL || element.find(osdAttrName(ATTR_DATA_ZONE)) != nullptr)) {
                complain(element.place,
                         "'" + key_of(element) + "' isn't stored: page '" + page.name +
                             "' stores options of settings without parent",
                         "such a setting, or another page");
            }
        });
    });
}

void find_idle_stores(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        const std::string button = root.value(osdAttrName(ATTR_CONFIRM_BTN));
        if (can_store(page) && storing_item(root) != nullptr && (button.empty() || button == "No")) {
            complain(root.place, "no value on page '" + page.name + "' waits for its item 'Confirm'",
                     "ConfirmBtn=\"Yes\"");
        }
    });
}

bool is_below_option(const Element& item) { return role_of(*item.parent) == On::Option; }

void find_lost_addresses(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        for_each_read(root, [&](const Element& element) {
            const bool edited = role_of(element) == On::Item && kind_of(element) == EDITABLE;
            if (edited && !(page.name == OSD_PAGE_NETWORK && is_below_option(element)) &&
                !is_never_stored(page, root)) {
                complain(element.place, "the address '" + key_of(element) + "' is edited and never stored",
                         "such an item below an option on page 'network'");
            }
        });
    });
}

} // namespace

const std::vector<Rule>& question_rules()
{
    static const std::vector<Rule> rules = {
        {"question-name", Severity::Error, "A question has 'confirm' in its name; page 'rotate' asks with 'restart'.",
         find_mute_questions},
        {"no-question", Severity::Warning, "A question is asked side by side, over the page below.", find_no_questions},
        {"no-answer", Severity::Error, "A question has the buttons No and Yes.", find_missing_answers},
        {"answer", Severity::Error, "The buttons No and Yes open no page.", find_opening_answers},
        {"first-answer", Severity::Warning, "A question begins with No.", find_hasty_answers},
        {"answer-place", Severity::Error, "Answers stand side by side.", find_heaped_answers, Told::Each, true},
        {"asks-nothing", Severity::Error, "A CONFIRM_POP has a value.", find_silent_buttons},
        {"confirmed-page", Severity::Warning,
         "Values wait for a question on those pages alone that the menu can store.", find_never_stored},
        {"confirm-button", Severity::Warning, "A page whose values wait for a question has a button that asks.",
         find_no_way_to_store},
        {"behind-confirm", Severity::Warning, "No value stands behind the button that stores those of a page.",
         find_behind_store},
        {"unstorable", Severity::Warning, "A page stores the values that wait on it.", find_unstorable},
        {"idle-confirm", Severity::Warning, "Values wait on a page that has a button to store them.", find_idle_stores},
        {"edited-address", Severity::Warning, "Addresses are edited on page 'network', below an option.",
         find_lost_addresses},
    };
    return rules;
}

} // namespace pages
