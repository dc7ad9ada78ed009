// The attributes of elements: their names, their words and numbers, whether they are needed and whether they are read.
#include "pages/check/attribute_rules.h"

#include <algorithm>
#include <charconv>

#include "osd_types.h"
#include "pages/check/page_walk.h"
#include "pages/check/rule_tables.h"
#include "pages/data/texts.h"

namespace pages {
namespace {

/// When an attribute matters; each is asked about elements whose kind, context and layout are known.
struct Case {
    tagATTR_ID_E id;
    On on;
    bool (*holds)(const Element& element);
    const char* words;
};

bool is_there(const Element&) { return true; }
bool is_icon_page(const Element& e) { return layout_of(e) == PAGE_LAYOUT_ICON; }
bool is_paged(const Element& e) { return layout_of(e) == PAGE_LAYOUT_VERTICAL_KETH; }
bool has_title(const Element& e) { return e.find(osdAttrName(ATTR_TITLE)) != nullptr; }
bool opens_page(const Element& e) { return kind_of(e) == SUBPAGE; }
bool asks_first(const Element& e) { return asks(kind_of(e)); }
bool waits(const Element& e) { return kind_of(e) == KEY_WITH_MSG || kind_of(e) == MSG_WITH_SUBITEM; }
bool is_edited(const Element& e) { return kind_of(e) == EDITABLE; }
bool is_asking_button(const Element& e) { return kind_of(e) == CONFIRM_POP && has_value(context_of(e)); }
bool is_plain_button(const Element& e) { return kind_of(e) == CONFIRM && has_value(context_of(e)); }
bool is_button(const Element& e) { return kind_of(e) == CONFIRM || kind_of(e) == CONFIRM_POP; }
bool is_text(const Element& e) { return kind_of(e) == CONST_TXT; }
bool is_bare_button(const Element& e) { return kind_of(e) == CONFIRM_POP_BTN; }
bool may_have_line(const Element& e) { return is_bare_button(e) && is_paged(e); }
bool is_address(const Element& e) { return context_of(e) == NAME_IP_VAL; }
bool is_icon(const Element& e) { return has_picture(context_of(e)) && is_icon_page(e); }
bool is_answer(const Element& e) { return is_question(layout_of(e)); }
bool has_message_line(const Element& e) { return layout_of(e) == PAGE_LAYOUT_HORIZONTAL_KETH; }

constexpr Case needed_cases[] = {
    {ATTR_LAYOUT, On::Page, is_there, "a page"},
    {ATTR_COUNT_PER_LINE, On::Page, is_icon_page, "a page in layout 'icon'"},
    {ATTR_TITLE_POS, On::Page, has_title, "a page with Title"},
    {ATTR_ITEM_INDEX, On::Item, is_there, "an item"},
    {ATTR_CTX, On::Item, is_there, "an item"},
    {ATTR_ATTR, On::Item, is_there, "an item"},
    {ATTR_PIC, On::Item, is_icon, "an icon"},
    {ATTR_SELECT_PIC, On::Item, is_icon, "an icon"},
    {ATTR_SUB_PAGE, On::Item, opens_page, "an item with Attr 'SUBPAGE'"},
    {ATTR_CONFIRM_PAGE, On::Item, asks_first, "an item that asks first"},
    {ATTR_MSG, On::Item, waits, "an item that waits for home"},
    {ATTR_NUM_OF_CHAR, On::Item, is_edited, "an item with Attr 'EDITABLE'"},
    {ATTR_VALUE, On::Item, is_asking_button, "an item with Attr 'CONFIRM_POP'"},
    {ATTR_MODE_INDEX, On::Option, is_there, "an option"},
};

/// Attributes that are not listed are read on all elements of their name.
constexpr Case read_cases[] = {
    {ATTR_COUNT_PER_LINE, On::Page, is_icon_page, "in layout 'icon'"},
    {ATTR_TITLE_POS, On::Page, has_title, "with Title"},
    {ATTR_MSG, On::Page, has_message_line, "in layout 'horizontal_align_keth'"},
    {ATTR_CUR_PAGES_NUM, On::Page, is_paged, "in layout 'vertical_align_keth'"},
    {ATTR_NEXT_PAGE, On::Page, is_paged, "in layout 'vertical_align_keth'"},
    {ATTR_PREV_PAGE, On::Page, is_paged, "in layout 'vertical_align_keth'"},
    {ATTR_SHOW_VALUE, On::Item, is_text, "with Attr 'CONST_TXT'"},
    {ATTR_PIC, On::Item, is_icon, "with Ctx 'ICON_TXT' in layout 'icon'"},
    {ATTR_SELECT_PIC, On::Item, is_icon, "with Ctx 'ICON_TXT' in layout 'icon'"},
    {ATTR_NUM_OF_CHAR, On::Item, is_address, "with Ctx 'NAME_IP_VAL'"},
    {ATTR_SUB_PAGE, On::Item, opens_page, "with Attr 'SUBPAGE'"},
    {ATTR_CONFIRM_PAGE, On::Item, asks_first, "with Attr 'CONFIRM_POP' or 'CONFIRM_POP_BTN'"},
    {ATTR_VALUE, On::Item, is_button, "with Attr 'CONFIRM' or 'CONFIRM_POP'"},
    {ATTR_MSG, On::Item, waits, "with Attr 'KEY_WITH_MSG' or 'MSG_WITH_SUBITEM'"},
    {ATTR_ITEM_POS, On::Item, is_bare_button, "with Attr 'CONFIRM_POP_BTN'"},
    {ATTR_LINE, On::Item, may_have_line, "with Attr 'CONFIRM_POP_BTN' in layout 'vertical_align_keth'"},
    {ATTR_ITEM_CNT, On::Item, is_answer, "in a 'horizontal' layout"},
    {ATTR_ITEM_INDEX_ON_LINE, On::Item, is_answer, "in a 'horizontal' layout"},
};

/// Whether a rule can say of an element what it is; else another one has told of a word that nobody knows.
bool is_clear(const Element& element)
{
    return layout_of(element) && (role_of(element) != On::Item || (kind_of(element) && context_of(element)));
}

const Case* find_case(const Element& element, tagATTR_ID_E id)
{
    const auto* found = std::find_if(std::begin(read_cases), std::end(read_cases),
                                     [&](const Case& one) { return one.id == id && one.on == role_of(element); });
    return found == std::end(read_cases) ? nullptr : found;
}

std::vector<std::string> names_on(On role)
{
    std::vector<std::string> names;
    for (const AttributeUse& use : attribute_uses()) {
        if (use.on == role) {
            names.emplace_back(use.name());
        }
    }
    return names;
}

bool is_unknown(const std::string& attribute) { return osdAttrId(attribute.c_str()) == ATTR_ID_CNT; }

/// The attribute that is meant by an unknown name; empty for none.
std::string meant_by(const Element& element, const std::string& attribute)
{
    return is_unknown(attribute) ? nearest_word(attribute, names_on(role_of(element))) : "";
}

/// Tells an editor where the schema is.
bool is_for_editors(const std::string& attribute)
{
    return attribute == "xmlns:xsi" || attribute == "xsi:noNamespaceSchemaLocation";
}

void find_unknown(const ResourceFolder& folder, const Complain& complain)
{
    for_each_read(folder, [&](const Element& element) {
        for (const Attribute& attribute : element.attributes) {
            if (is_unknown(attribute.name) && !is_for_editors(attribute.name)) {
                complain(attribute.place, "attribute '" + attribute.name + "' means nothing to the menu",
                         one_of(attribute.name, names_on(role_of(element))));
            }
        }
    });
}

/// What stands there in place of the only attribute that an element can have: another one, with the same value in mind.
const Attribute* stand_in(const Element& element)
{
    const std::vector<std::string> names = names_on(role_of(element));
    const bool other = names.size() == 1 && element.attributes.size() == 1 && element.find(names.front()) == nullptr;
    return other && !is_unknown(element.attributes.front().name) ? &element.attributes.front() : nullptr;
}

void find_missing(const ResourceFolder& folder, const Complain& complain)
{
    const auto is_misspelt = [](const Element& element, const std::string& name) {
        return std::any_of(element.attributes.begin(), element.attributes.end(),
                           [&](const Attribute& one) { return meant_by(element, one.name) == name; });
    };
    for_each_read(folder, [&](const Element& element) {
        for (const Case& one : needed_cases) {
            const std::string name = osdAttrName(one.id);
            if (one.on == role_of(element) && element.find(name) == nullptr && one.holds(element) &&
                !is_misspelt(element, name)) {
                const Attribute* other = stand_in(element);
                complain(element.place, name + " is missing",
                         name + "=\"...\", which " + one.words + " needs" +
                             (other == nullptr ? "" : ", in place of " + other->name));
            }
        }
    });
}

void find_empty_buttons(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (is_plain_button(item) && item.find(osdAttrName(ATTR_VALUE)) == nullptr) {
            complain(item.place, "the button is empty", "Value=\"...\", the text on the button");
        }
    });
}

void find_empty_values(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (is_text(item) && has_value(context_of(item)) && item.find(osdAttrName(ATTR_SHOW_VALUE)) == nullptr) {
            complain(item.place, "the item shows no value", "ShowValue=\"1\", or Ctx=\"NAME\"");
        }
    });
}

void find_idle(const ResourceFolder& folder, const Complain& complain)
{
    for_each_read(folder, [&](const Element& element) {
        for (const Attribute& attribute : element.attributes) {
            const On role = role_of(element);
            const AttributeUse* use = find_use(role, attribute.name);
            if (use == nullptr && !is_unknown(attribute.name) && stand_in(element) == nullptr) {
                complain(attribute.place, attribute.name + " does nothing in <" + element.name + ">",
                         "one of " + joined(names_on(role)));
            } else if (use != nullptr && !is_read(element, *use)) {
                complain(attribute.place, attribute.name + " does nothing here",
                         std::string("none: it works ") + find_case(element, use->id)->words);
            }
        }
    });
}

/// Calls visit(element, attribute, use) for the attributes that the menu reads.
template <typename Visit>
void for_each_use(const ResourceFolder& folder, Visit&& visit)
{
    for_each_read(folder, [&](const Element& element) {
        for (const Attribute& attribute : element.attributes) {
            const AttributeUse* use = find_use(role_of(element), attribute.name);
            if (use != nullptr && is_read(element, *use)) {
                visit(element, attribute, *use);
            }
        }
    });
}

void find_strange_words(const ResourceFolder& folder, const Complain& complain)
{
    for_each_use(folder, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
        const std::vector<std::string> words = use.word_list();
        if (use.holds == Holds::Word && std::count(words.begin(), words.end(), attribute.value) == 0) {
            complain(attribute.place, attribute.name + " '" + attribute.value + "' means nothing to the menu",
                     one_of(attribute.value, words));
        }
    });
}

bool is_number(const std::string& text)
{
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end && number >= 0;
}

void find_no_numbers(const ResourceFolder& folder, const Complain& complain)
{
    for_each_use(folder, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
        const bool own_rule =
            use.id == ATTR_COUNT_PER_LINE || use.id == ATTR_ITEM_CNT || use.id == ATTR_ITEM_INDEX_ON_LINE;
        if (use.holds == Holds::Number && !own_rule && !is_number(attribute.value)) {
            complain(attribute.place, attribute.name + " '" + attribute.value + "' is no number",
                     "digits alone, at most 2147483647");
        }
    });
}

void find_refused_flags(const ResourceFolder& folder, const Complain& complain)
{
    for_each_use(folder, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
        for (const char* no : {"0", "no", "No", "NO", "false", "False", "off", "Off"}) {
            if (use.holds == Holds::Flag && attribute.value == no) {
                complain(attribute.place, attribute.name + " '" + no + "' works as any other word does",
                         "\"1\", or no " + attribute.name);
            }
        }
    });
}

void find_long(const ResourceFolder& folder, const Complain& complain)
{
    for_each_use(folder, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
        const bool is_other = use.holds == Holds::Word || use.holds == Holds::Number || use.holds == Holds::Flag;
        const bool is_file = use.holds == Holds::Page && folder.pages.count(attribute.value) > 0; // which has a rule
        if (!is_other && !is_file && attribute.value.size() >= OSD_TEXT_LEN) {
            complain(attribute.place, attribute.name + " " + words_of_length(attribute.value), "at most 31 bytes");
        }
    });
}

} // namespace

bool is_read(const Element& element, const AttributeUse& use)
{
    const Case* found = find_case(element, use.id);
    return found == nullptr || !is_clear(element) || found->holds(element);
}

const std::vector<Rule>& attribute_rules()
{
    static const std::vector<Rule> rules = {
        {"unknown-attribute", Severity::Error, "The menu knows each attribute.", find_unknown},
        {"missing-attribute", Severity::Error, "Elements have the attributes that they need.", find_missing},
        {"empty-button", Severity::Warning, "A button that shows a value has a text on it.", find_empty_buttons},
        {"empty-value", Severity::Warning, "A text with a value beside it has ShowValue.", find_empty_values},
        {"idle-attribute", Severity::Warning, "An attribute stands where the menu reads it.", find_idle},
        {"word", Severity::Error, "An attribute has one of its words.", find_strange_words},
        {"number", Severity::Warning, "A number consists of digits.", find_no_numbers},
        {"flag", Severity::Warning, "What counts by being there doesn't say no.", find_refused_flags},
        {"length", Severity::Error, "Keys, and names of pages and pictures, have at most 31 bytes.", find_long},
    };
    return rules;
}

} // namespace pages
