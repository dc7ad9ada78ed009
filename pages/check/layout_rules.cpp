// What a page can show: pictures, kinds of items and what they show, nothing twice.
#include "pages/check/rule_tables.h"

#include <algorithm>

#include "comm/picture_names.h"
#include "menu/render/icon_grid.h"
#include "pages/check/setting_rules.h"
#include "pages/grammar/cases.h"
#include "pages/grammar/page_walk.h"
#include "pages/menu/menu.h"

namespace pages {
namespace {

void find_contradictions(const ResourceFolder& folder, const Complain& complain)
{
    static const std::map<Arrangement, const char*> names = {
        {Arrangement::Icons, "icons"}, {Arrangement::List, "a list"}, {Arrangement::Question, "a question"}};
    for_each_page(folder, [&](const PageFile&, const Element& page) {
        const auto meant = contradiction_of(page);
        if (!meant) {
            return;
        }
        std::vector<std::string> words;
        for (const auto& word : c_astLayoutWord) {
            if (arrangement_of(word.enValue) == *meant) {
                words.emplace_back(word.pcWord);
            }
        }
        const Attribute& layout = *page.find(osdAttrName(ATTR_LAYOUT));
        complain(layout.place,
                 "Layout '" + layout.value + "' fits none of the items, which are made for " + names.at(*meant),
                 one_of(layout.value, words));
    });
}

/// So many icons have a place beside each other.
int most_icons()
{
    int count = 1;
    for (SDL_Rect cell = osdIconFirst(View().menu(), 2); cell.w > 0 && cell.h > 0;) {
        ++count;
        cell = osdIconFirst(View().menu(), count + 1);
    }
    return count;
}

void find_no_grids(const ResourceFolder& folder, const Complain& complain)
{
    std::vector<std::string> counts;
    for (int count = most_icons(); count > 0; --count) {
        counts.push_back(std::to_string(count));
    }
    for_each_page(folder, [&](const PageFile&, const Element& page) {
        const Attribute* count = page.find(osdAttrName(ATTR_COUNT_PER_LINE));
        if (layout_of(page) == PAGE_LAYOUT_ICON && count != nullptr &&
            std::count(counts.begin(), counts.end(), count->value) == 0) {
            complain(count->place,
                     "CountPerLine '" + count->value + "' is no number of icons that fit beside each other",
                     "1 to " + counts.front());
        }
    });
}

void find_missing_pictures(const ResourceFolder& folder, const Complain& complain)
{
    if (folder.pictures.empty()) {
        return; // which is told
    }
    for_each_use(folder, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
        if (use.holds == Holds::Picture && folder.pictures.count(attribute.value) == 0) {
            complain(attribute.place, attribute.name + ": there is no picture '" + attribute.value + "'",
                     nearest_or(attribute.value, keys_of(folder.pictures), "it in pic/"));
        }
    });
}

void find_missing_own_pictures(const ResourceFolder& folder, const Complain& complain)
{
    for (const char* name : c_apcPictureName) {
        if (folder.pictures.count(name) == 0 && !folder.pictures.empty()) {
            complain({"pic/"}, std::string("the menu draws a picture '") + name + "', which is missing",
                     std::string("pic/") + name + ".svg");
        }
    }
}

template <typename Keyword, std::size_t N, typename Value>
std::string word_of(const Keyword (&table)[N], Value value)
{
    const auto* found =
        std::find_if(std::begin(table), std::end(table), [value](const Keyword& row) { return row.enValue == value; });
    return found == std::end(table) ? "" : found->pcWord;
}

void find_odd_contexts(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        if (!has_odd_context(item)) {
            return;
        }
        std::vector<std::string> words;
        for (const Pair& pair : pairs) {
            if (kind_of(item) == pair.kind) {
                words.push_back(word_of(c_astCtxWord, pair.context));
            }
        }
        const Attribute& context = *item.find(osdAttrName(ATTR_CTX));
        complain(context.place,
                 "Ctx '" + context.value + "' doesn't go with Attr '" + item.value(osdAttrName(ATTR_ATTR)) + "'",
                 one_of(context.value, words));
    });
}

void find_no_icons(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const bool top = item.parent == nullptr || role_of(*item.parent) == On::Page;
        if (top && layout_of(item) == PAGE_LAYOUT_ICON && context_of(item) && !has_picture(context_of(item))) {
            complain(item.place_of(osdAttrName(ATTR_CTX)), "an item without a picture isn't drawn in layout 'icon'",
                     "Ctx=\"ICON_TXT\" with Pic and SelectPic");
        } else if (is_idle_icon(item) && item.find(osdAttrName(ATTR_SUB_PAGE)) == nullptr) { // or that is told as idle
            complain(item.place_of(osdAttrName(ATTR_ATTR)),
                     "home does nothing on an icon with Attr '" + item.value(osdAttrName(ATTR_ATTR)) + "'",
                     "'SUBPAGE'");
        }
    });
}

/// What to change of an item whose type doesn't go with the rest: the type, or what it shows where the setting is of the
/// given type.
std::string type_remedy(const ResourceFolder& folder, const Element& item, const Pair& pair, tagITEM_VAL_TYPE_E type)
{
    const Setting* setting = setting_of(folder, item);
    const auto* other = std::find_if(std::begin(pairs), std::end(pairs), [&](const Pair& one) {
        return one.kind == pair.kind && one.type == type && has_value(one.context);
    });
    const bool is_number = setting != nullptr && setting->kind != SettingKind::Option;
    return setting != nullptr && other != std::end(pairs) && is_number == (type == NUMERICAL)
               ? "Ctx=\"" + word_of(c_astCtxWord, other->context) + "\", as the setting is of kind " +
                     name_of(setting->kind)
               : "'" + word_of(c_astValTypeWord, pair.type) + "'";
}

/// Of a pair that goes together; a value without its type is read as another one.
void find_odd_types(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const auto* pair = std::find_if(std::begin(pairs), std::end(pairs), [&](const Pair& one) {
            return kind_of(item) == one.kind && context_of(item) == one.context && has_value(one.context);
        });
        auto type = OPTTXT;
        const Attribute* word = item.find(osdAttrName(ATTR_VAL_TYPE));
        const bool known = word == nullptr || osdKeywordFind(c_astValTypeWord, word->value.c_str(), &type);
        if (pair != std::end(pairs) && known && type != pair->type) {
            complain(item.place_of(osdAttrName(ATTR_VAL_TYPE)),
                     "ValType '" + word_of(c_astValTypeWord, type) + "' doesn't go with Ctx '" +
                         word_of(c_astCtxWord, pair->context) + "' and Attr '" + word_of(c_astAttrWord, pair->kind) +
                         "'",
                     type_remedy(folder, item, *pair, type));
        }
    });
}

/// Options of an item exclude each other, all else shows together.
void tell_twins(const Element& parent, const std::map<std::string, int>& above, const Complain& complain)
{
    std::map<std::string, int> known = above; // the line of each key
    for (const auto& item : parent.children) {
        const Attribute* key = item->find(osdAttrName(ATTR_ITEM_INDEX));
        if (key == nullptr) {
            continue;
        }
        const auto [twin, is_new] = known.insert({key->value, key->place.line});
        if (!is_new) {
            complain(key->place,
                     "item '" + key->value + "' stands on line " + std::to_string(twin->second) + " already",
                     "one of the two, as both show");
        }
    }
    for (const auto& item : parent.children) {
        for (const auto& option : item->children) {
            if (!is_blind(*item)) {
                tell_twins(*option, known, complain);
            }
        }
    }
}

void find_twins(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile&, const Element& page) { tell_twins(page, {}, complain); });
}

void find_hidden_cursors(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile&, const Element& page) {
        if (layout_of(page) == PAGE_LAYOUT_VERTICAL_KETH && !page.children.empty() &&
            kind_of(*page.children.front()) == STATUS) {
            complain(page.children.front()->place, "the cursor isn't seen on a STATUS item that comes first",
                     "another item before it");
        }
    });
}

void find_empty_pages(const ResourceFolder& folder, const Complain& complain)
{
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        if (root.children.empty() && layout_of(root)) {
            complain(root.place, "page '" + page.name + "' holds no item, keys do nothing on it", "items");
        }
    });
}

} // namespace

const std::vector<Rule>& layout_rules()
{
    static const std::vector<Rule> rules = {
        {"layout", Severity::Error, "The layout of a page fits its items.", find_contradictions, Told::Each, true},
        {"grid", Severity::Error, "Icons have a number of columns that fit.", find_no_grids, Told::Each, true},
        {"no-picture", Severity::Error, "Pictures that a page names are there.", find_missing_pictures},
        {"menu-picture", Severity::Error, "Pictures that the menu draws by itself are there.",
         find_missing_own_pictures},
        {"context", Severity::Warning, "What an item shows goes with its kind.", find_odd_contexts, Told::Each, true},
        {"icon", Severity::Error, "Items of layout 'icon' have pictures, and home does something.", find_no_icons,
         Told::Each, true},
        {"value-type", Severity::Error, "The type of a value goes with what the item shows.", find_odd_types},
        {"twin", Severity::Error, "No item stands twice among those that show together.", find_twins},
        {"hidden-cursor", Severity::Error, "A page in layout 'vertical_align_keth' doesn't begin with STATUS.",
         find_hidden_cursors},
        {"empty-page", Severity::Error, "A page holds items.", find_empty_pages},
    };
    return rules;
}

} // namespace pages
