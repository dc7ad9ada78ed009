#include "pages/grammar/attributes.h"

#include <algorithm>
#include <array>

namespace pages {
namespace {

/// The words of a table of the parser, with a sentence for each in the same order.
template <typename Keyword, std::size_t N>
std::vector<Word> explain(const Keyword (&words)[N], const std::array<const char*, N>& meanings)
{
    std::vector<Word> explained;
    for (std::size_t i = 0; i < N; ++i) {
        explained.push_back({words[i].pcWord, meanings[i]});
    }
    return explained;
}

std::vector<Word> layouts()
{
    return explain(c_astLayoutWord,
                   {{"Pictures with captions in a grid; home opens what an icon leads to; a title isn't drawn.",
                     "A list of settings.", "A question over the page below, the answers side by side.",
                     "A list with an arrow at the cursor, an amber title and key hints at the foot.",
                     "A list over several pages, arrows round the options; right opens a page as home does; the cursor "
                     "passes over STATUS.",
                     "A question with a message line, wider."}});
}

std::vector<Word> contexts()
{
    return explain(c_astCtxWord,
                   {{"A picture; drawn as ICON_TXT.", "A picture and its caption, in layout icon.",
                     "A picture and its caption; drawn as ICON_TXT.", "A label.", "A label and a number with its bar.",
                     "A label and a value.", "A label and an address."}});
}

std::vector<Word> kinds()
{
    return explain(
        c_astAttrWord,
        {{"A text; with ShowValue a setting that can't be changed here. With NAME, NAME_VAL or NAME_IP_VAL.",
          "A fact of the camera. With NAME_VAL or NAME_IP_VAL.",
          "A COMMON value that waits for home, while Msg shows; going up or down drops it.",
          "Left and right change the value at once. With NAME_VAL and OPTTXT, or NAME_BAR_VAL and NUMERICAL.",
          "An address that is edited between two presses of home; stored under an option on page network only. With "
          "NAME_IP_VAL and EDITTXT.",
          "A button, says \"Loading\" while the camera works; an answer. With NAME_VAL; answers and Back with NAME.",
          "A button that asks first. With NAME_VAL, never NAME.", "A button without value that asks first. With NAME.",
          "A COMMON value whose options hold items: exactly the setting's options, at most 32. With NAME_VAL and "
          "OPTTXT.",
          "Opens a page. With NAME, icons with ICON_TXT.",
          "SUBITEM that waits as KEY_WITH_MSG does. With NAME_VAL and OPTTXT."}});
}

std::vector<Word> value_types()
{
    return explain(c_astValTypeWord, {{"A number.", "An option or a text.", "An edited address."}});
}

std::vector<Word> picture_types()
{
    return explain(c_astPicTypeWord, {{"Enter. A CONFIRM button with it never says \"Loading\".", "Change.",
                                       "Enter and change.", "Set."}});
}

std::vector<Word> yes_or_no() { return {{"Yes", "Values wait for a question."}, {"No", "As without it."}}; }

} // namespace

const char* AttributeUse::name() const { return osdAttrName(id); }

std::vector<std::string> AttributeUse::word_list() const
{
    std::vector<std::string> list;
    for (const Word& word : words) {
        list.emplace_back(word.word);
    }
    return list;
}

const std::vector<AttributeUse>& attribute_uses()
{
    static const std::vector<AttributeUse> uses = {
        {ATTR_LAYOUT, On::Page, Holds::Word, "every page", "How the page is drawn and walked.", layouts()},
        {ATTR_COUNT_PER_LINE, On::Page, Holds::Number, "icon", "Icons in a row, 1 to 9, in layout icon.", {}},
        {ATTR_TITLE, On::Page, Holds::Label, "", "The title.", {}},
        {ATTR_TITLE_POS, On::Page, Holds::Word, "a page with Title", "Changes nothing on screen.",
         explain(c_astTitlePosWord, {{"Left.", "Right.", "In the middle."}})},
        {ATTR_MSG, On::Page, Holds::Label, "", "The line below the title, in horizontal_align_keth.", {}},
        {ATTR_CUR_PAGES_NUM,
         On::Page,
         Holds::Literal,
         "",
         "Shown behind the title as it stands, such as 1/3, in vertical_align_keth.",
         {}},
        {ATTR_NEXT_PAGE, On::Page, Holds::Page, "", "The page behind the last row, with CurPagesNum.", {}},
        {ATTR_PREV_PAGE,
         On::Page,
         Holds::Page,
         "",
         "The page before the first row, which must name this one as NextPage; with CurPagesNum.",
         {}},
        {ATTR_CONFIRM_BTN, On::Page, Holds::Word, "", "Whether values wait for a question, in lists.", yes_or_no()},
        {ATTR_RD_ONLY, On::Page, Holds::Number, "", "1 is kept for the host and changes nothing on screen.", {}},
        {ATTR_ITEM_INDEX, On::Item, Holds::Key, "every item", "The key of the label's text and of the setting.", {}},
        {ATTR_CTX, On::Item, Holds::Word, "every item", "What the item shows.", contexts()},
        {ATTR_ATTR, On::Item, Holds::Word, "every item", "What kind of item it is.", kinds()},
        {ATTR_VAL_TYPE, On::Item, Holds::Word, "", "The kind of value; OPTTXT without it, or for an unknown word.",
         value_types()},
        {ATTR_DATA_ZONE,
         On::Item,
         Holds::Zone,
         "",
         "The zone in which the setting lies; a setting without parent needs none.",
         {}},
        {ATTR_PIC_TYPE, On::Item, Holds::Word, "", "The hint in vertical_tolvane_align; move alone without it.",
         picture_types()},
        {ATTR_SHOW_VALUE,
         On::Item,
         Holds::Flag,
         "",
         "There, whatever it says: the value is read at each draw. For CONST_TXT.",
         {}},
        {ATTR_PIC, On::Item, Holds::Picture, "icons", "The picture; without it neither picture nor caption show.", {}},
        {ATTR_SELECT_PIC, On::Item, Holds::Picture, "icons in style 1", "The picture of the selected icon.", {}},
        {ATTR_NUM_OF_CHAR,
         On::Item,
         Holds::Number,
         "EDITABLE",
         "Digits and dots to edit, 15 for an address; only the first digit changes without it.",
         {}},
        {ATTR_SUB_PAGE, On::Item, Holds::Page, "SUBPAGE", "The page to open.", {}},
        {ATTR_CONFIRM_PAGE, On::Item, Holds::Page, "CONFIRM_POP, CONFIRM_POP_BTN", "The question to ask.", {}},
        {ATTR_VALUE,
         On::Item,
         Holds::Label,
         "CONFIRM_POP, and CONFIRM with NAME_VAL",
         "The text on a button; without it the button is empty, and CONFIRM_POP asks nothing.",
         {}},
        {ATTR_MSG, On::Item, Holds::Label, "KEY_WITH_MSG, MSG_WITH_SUBITEM", "The message line at the foot.", {}},
        {ATTR_ITEM_POS, On::Item, Holds::Word, "", "Where a CONFIRM_POP_BTN stands; left without it.",
         explain(c_astItemPosWord, {{"In the middle."}})},
        {ATTR_LINE,
         On::Item,
         Holds::Flag,
         "",
         "There, whatever it says: a line above a CONFIRM_POP_BTN in vertical_align_keth.",
         {}},
        {ATTR_ITEM_CNT, On::Item, Holds::Number, "answers", "How many answers a question has.", {}},
        {ATTR_ITEM_INDEX_ON_LINE, On::Item, Holds::Number, "answers", "Which answer this is, from 0.", {}},
        {ATTR_MODE_INDEX,
         On::Option,
         Holds::Key,
         "every option",
         "The option's key in the setting and of its text.",
         {}},
    };
    return uses;
}

const AttributeUse* find_use(On on, const std::string& attribute)
{
    const auto& uses = attribute_uses();
    const auto found = std::find_if(uses.begin(), uses.end(),
                                    [&](const AttributeUse& use) { return use.on == on && attribute == use.name(); });
    return found == uses.end() ? nullptr : &*found;
}

} // namespace pages
