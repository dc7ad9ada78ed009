// The attributes of elements: their names, their words and numbers, whether they are needed and whether they are read.
#include "pages/check/rule_tables.h"

#include <algorithm>
#include <charconv>

#include "osd_types.h"
#include "pages/data/texts.h"
#include "pages/grammar/cases.h"

namespace pages {
namespace {

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

/// Whether a name that nobody knows may be meant as this attribute, which is told.
bool is_misspelt(const Element& element, const std::string& name)
{
    return std::any_of(element.attributes.begin(), element.attributes.end(),
                       [&](const Attribute& one) { return meant_by(element, one.name) == name; });
}

/// Attributes that are needed in the same case are told together.
void find_missing(const ResourceFolder& folder, const Complain& complain)
{
    for_each_read(folder, [&](const Element& element) {
        std::map<std::string, std::vector<std::string>> missing; // by the words of the case
        for (const Case& one : missing_in(element)) {
            if (!is_misspelt(element, osdAttrName(one.id)) && !has_odd_context(element)) {
                missing[one.words].emplace_back(osdAttrName(one.id));
            }
        }
        for (const auto& [needing, names] : missing) {
            std::string given;
            for (const std::string& name : names) {
                given += (given.empty() ? "" : " ") + name + "=\"...\"";
            }
            const Attribute* other = stand_in(element);
            complain(element.place, joined(names) + (names.size() == 1 ? " is missing" : " are missing"),
                     given + ", which " + needing + " needs" +
                         (other == nullptr ? "" : ", in place of " + other->name));
        }
    });
}

void find_empty_buttons(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (kind_of(item) == CONFIRM && has_value(context_of(item)) && item.find(osdAttrName(ATTR_VALUE)) == nullptr) {
            complain(item.place, "the button is empty", "Value=\"...\", the text on the button");
        }
    });
}

void find_empty_values(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (kind_of(item) == CONST_TXT && has_value(context_of(item)) &&
            item.find(osdAttrName(ATTR_SHOW_VALUE)) == nullptr) {
            complain(item.place, "the item shows no value", "ShowValue=\"1\", or Ctx=\"NAME\"");
        }
    });
}

/// Attributes that wait for the same case are told together; none of an element that may be meant otherwise.
void tell_unread(const Element& element, const Complain& complain)
{
    if (has_odd_context(element) || !missing_in(element).empty()) {
        return;
    }
    std::map<std::string, std::vector<const Attribute*>> unread; // by the words of the case
    for (const Attribute& attribute : element.attributes) {
        const AttributeUse* use = find_use(role_of(element), attribute.name);
        if (use != nullptr && !is_read(element, *use)) {
            unread[case_of_reading(element, *use)->words].push_back(&attribute);
        }
    }
    for (const auto& [wanted, attributes] : unread) {
        const bool one = attributes.size() == 1;
        std::vector<std::string> names;
        for (const Attribute* attribute : attributes) {
            names.push_back(attribute->name);
        }
        complain(attributes.front()->place, joined(names) + (one ? " does nothing here" : " do nothing here"),
                 (one ? "none: it works " : "none: they work ") + wanted);
    }
}

void find_idle(const ResourceFolder& folder, const Complain& complain)
{
    for_each_read(folder, [&](const Element& element) {
        const On role = role_of(element);
        for (const Attribute& attribute : element.attributes) {
            if (find_use(role, attribute.name) == nullptr && !is_unknown(attribute.name) &&
                stand_in(element) == nullptr) {
                complain(attribute.place, attribute.name + " does nothing in <" + element.name + ">",
                         "one of " + joined(names_on(role)));
            }
        }
        tell_unread(element, complain);
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

const std::vector<Rule>& attribute_rules()
{
    static const std::vector<Rule> rules = {
        {"unknown-attribute", Severity::Error, "The menu knows each attribute.", find_unknown},
        {"missing-attribute", Severity::Error, "Elements have the attributes that they need.", find_missing,
         Told::Once},
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
