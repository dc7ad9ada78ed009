#include "pages/grammar/cases.h"

#include <algorithm>

namespace pages {
namespace {

bool is_there(const Element&) { return true; }
bool is_icon_page(const Element& e) { return layout_of(e) == PAGE_LAYOUT_ICON; }
bool is_paged(const Element& e) { return layout_of(e) == PAGE_LAYOUT_VERTICAL_KETH; }
bool has_title(const Element& e) { return e.find(osdAttrName(ATTR_TITLE)) != nullptr; }
bool opens_page(const Element& e) { return kind_of(e) == SUBPAGE; }
bool asks_first(const Element& e) { return asks(kind_of(e)); }
bool waits(const Element& e) { return kind_of(e) == KEY_WITH_MSG || kind_of(e) == MSG_WITH_SUBITEM; }
bool is_edited(const Element& e) { return kind_of(e) == EDITABLE; }
bool is_asking_button(const Element& e) { return kind_of(e) == CONFIRM_POP && has_value(context_of(e)); }
bool is_button(const Element& e) { return kind_of(e) == CONFIRM || kind_of(e) == CONFIRM_POP; }
bool is_text(const Element& e) { return kind_of(e) == CONST_TXT; }
bool is_bare_button(const Element& e) { return kind_of(e) == CONFIRM_POP_BTN; }
bool may_have_line(const Element& e) { return is_bare_button(e) && is_paged(e); }
bool is_address(const Element& e) { return context_of(e) == NAME_IP_VAL; }
bool is_icon(const Element& e) { return has_picture(context_of(e)) && is_icon_page(e); }
bool is_answer(const Element& e) { return is_question(layout_of(e)); }
bool has_message_line(const Element& e) { return layout_of(e) == PAGE_LAYOUT_HORIZONTAL_KETH; }

constexpr Case needed[] = {
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
constexpr Case read[] = {
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

} // namespace

std::vector<Case> missing_in(const Element& element)
{
    std::vector<Case> missing;
    for (const Case& one : needed) {
        if (one.on == role_of(element) && element.find(osdAttrName(one.id)) == nullptr && one.holds(element)) {
            missing.push_back(one);
        }
    }
    return missing;
}

bool has_odd_context(const Element& item)
{
    const auto kind = kind_of(item);
    if (!kind || !context_of(item) || !layout_of(item) || layout_of(item) == PAGE_LAYOUT_ICON ||
        (kind == CONFIRM_POP && context_of(item) == NAME)) {
        return false; // other rules tell of these
    }
    return std::none_of(std::begin(pairs), std::end(pairs),
                        [&](const Pair& pair) { return kind == pair.kind && context_of(item) == pair.context; });
}

const Case* case_of_reading(const Element& element, const AttributeUse& use)
{
    const auto* found = std::find_if(std::begin(read), std::end(read),
                                     [&](const Case& one) { return one.id == use.id && one.on == role_of(element); });
    return found == std::end(read) ? nullptr : found;
}

bool is_read(const Element& element, const AttributeUse& use)
{
    const Case* found = case_of_reading(element, use);
    return found == nullptr || !is_clear(element) || found->holds(element);
}

} // namespace pages
