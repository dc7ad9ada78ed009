#include "pages/measure/states.h"

#include <algorithm>
#include <array>

#include "menu/core/item.h"
#include "menu/core/words.h"
#include "pages/menu/camera.h"
#include "platform/config_call.h"

namespace pages {
namespace {

constexpr const char* widest_address = "255.255.255.255";
constexpr std::array<const char*, 4> button_words{"", OSD_WORD_CONFIRM, OSD_WORD_LOADING, OSD_WORD_FINISH};
constexpr std::array<const char*, 3> finishing{OSD_KEY_FACTORY_RESTORE, OSD_KEY_RESTART, OSD_KEY_LENS_CORRECTION};

bool is_button(const tagITEM_NODE_S& item) { return item.enAttr == CONFIRM || item.enAttr == CONFIRM_POP; }

/// The setting behind a value that is read at each draw; null for any other item.
const Setting* live_setting(const tagITEM_NODE_S& item)
{
    return item.bShowValue == 1 ? camera().find(Camera::parent_of_zone(item.acDataZone), item.acItemIndex) : nullptr;
}

int steps_of(const Nodes& nodes);

/// How many values an item has to show, with all that stands below each.
int steps_of(const Node& node)
{
    const tagITEM_NODE_S& item = *node.item;
    if (!node.options.empty()) {
        int steps = 0;
        for (const Nodes& option : node.options) {
            steps += steps_of(option);
        }
        return steps;
    }
    if (!osdItemHasValue(&item)) {
        return 1;
    }
    if (is_button(item)) {
        return static_cast<int>(button_words.size());
    }
    if (item.enValType == NUMERICAL) {
        return 2;
    }
    if (!node.answers.empty()) {
        return static_cast<int>(node.answers.size());
    }
    const Setting* live = live_setting(item);
    const int options = live != nullptr ? static_cast<int>(live->options.size()) : osdItemOptionCnt(&item);
    return std::max(1, options);
}

int steps_of(const Nodes& nodes)
{
    int most = 1;
    for (const auto& node : nodes) {
        most = std::max(most, steps_of(*node));
    }
    return most;
}

template <std::size_t N>
void set_text(char (&field)[N], const std::string& text)
{
    osdTextSet(field, text.c_str());
}

void choose_word(Node& node, const std::string& key)
{
    node.value_key = key;
    OSD_TEXT text = "";
    (void)osdCfgTranslate(camera().view().language.c_str(), key.c_str(), text); // empty without a translation
    set_text(node.item->acValue[0], text);
}

void choose_button(Node& node, int step)
{
    tagITEM_NODE_S& item = *node.item;
    const bool finishes = std::any_of(finishing.begin(), finishing.end(),
                                      [&](const char* key) { return osdTextEqual(key, item.acItemIndex); });
    const std::string word = button_words[static_cast<std::size_t>(step)];
    if (word.empty() || (word == OSD_WORD_FINISH && !finishes)) {
        node.value_key = item.acValueKey[0];
        set_text(item.acValue[0], node.own_button);
        return;
    }
    choose_word(node, word);
}

void choose_live(Node& node, const Setting& setting, int step)
{
    if (setting.kind == SettingKind::Option) {
        node.value_key = setting.options[static_cast<std::size_t>(step)];
        camera().store(setting, node.value_key);
    } else if (holds_address(setting)) {
        camera().store(setting, widest_address);
    }
}

/// A value that is neither number nor option.
void choose_text(Node& node)
{
    tagITEM_NODE_S& item = *node.item;
    for (auto* field : {&item.acValue[0], &item.acValue[1]}) {
        if (is_address(*field)) {
            set_text(*field, widest_address);
        }
    }
}

void choose_plain(Node& node, int step)
{
    tagITEM_NODE_S& item = *node.item;
    const Setting* live = live_setting(item);
    if (!osdItemHasValue(&item)) {
        return;
    }
    if (is_button(item)) {
        choose_button(node, step);
    } else if (item.enValType == NUMERICAL) {
        item.s32Cur = step == 0 ? item.s32Min : item.s32Max;
    } else if (!node.answers.empty()) {
        choose_word(node, node.answers[static_cast<std::size_t>(step)]);
    } else if (live != nullptr) {
        choose_live(node, *live, step);
    } else if (item.enAttr == STATUS || item.enAttr == EDITABLE) {
        choose_text(node);
    } else {
        item.s32CurIdx = step;
        node.value_key = osdItemOptionKey(&item, step);
    }
}

/// One of the item's options. What is stored is another: an address mode that is stored may end the page.
void choose_option(Node& node, int option)
{
    node.item->s32CurIdx = option;
    node.item->s32SavedIdx = -1;
    node.value_key = osdItemOptionKey(node.item, option);
}

void choose(const Nodes& nodes, int step);

void choose(Node& node, int step)
{
    step %= steps_of(node);
    if (node.options.empty()) {
        choose_plain(node, step);
        return;
    }
    int option = 0;
    for (const Nodes& below : node.options) {
        const int steps = steps_of(below);
        if (step < steps) {
            choose_option(node, option);
            choose(below, step);
            return;
        }
        step -= steps;
        ++option;
    }
}

void choose(const Nodes& nodes, int step)
{
    for (const auto& node : nodes) {
        choose(*node, step);
    }
}

/// Chooses the options below which most rows show, and tells how many these are.
int choose_most_rows(const Nodes& nodes)
{
    int rows = 0;
    for (const auto& node : nodes) {
        int most = -1;
        int chosen = 0;
        for (std::size_t i = 0; i < node->options.size(); ++i) {
            const int below = choose_most_rows(node->options[i]);
            if (below > most) {
                most = below;
                chosen = static_cast<int>(i);
            }
        }
        if (most >= 0) {
            choose_option(*node, chosen);
        }
        rows += 1 + std::max(most, 0);
    }
    return rows;
}

class Page {
public:
    Page(tagPAGE_NODE_S& page, const Nodes& nodes, const std::function<void()>& draw)
        : page_(page), nodes_(nodes), draw_(draw)
    {
    }

    void draw_icons()
    {
        for (int i = 0; i < page_.s32ItemCnt; ++i) {
            page_.s32SelIdx = i;
            draw_();
        }
    }

    void draw_rows()
    {
        const int steps = steps_of(nodes_);
        for (int step = 0; step < steps; ++step) {
            choose(nodes_, step);
            draw_with_cursor(false);
            draw_with_cursor(true);
        }
        (void)choose_most_rows(nodes_);
        draw_with_cursor(true);
        for_each_node(nodes_, [&](const Node& node) {
            if (osdItemWaits(node.item)) {
                draw_message(node);
            }
        });
    }

private:
    void draw_with_cursor(bool there)
    {
        for_each_node(nodes_, [&](const Node& node) {
            node.item->bActive = there ? 1 : 0;
            node.item->bEditing = there && node.item->enAttr == EDITABLE ? 1 : 0;
            node.item->s32EditCursor = std::max(0, node.item->s32NumOfChar - 1);
        });
        draw_();
    }

    void draw_message(const Node& node)
    {
        (void)choose_most_rows(nodes_);
        for (const Node* below = &node; below->parent != nullptr; below = below->parent) {
            choose_option(*below->parent, below->option);
        }
        set_text(page_.acKeyMsg, node.item->acMsg);
        page_.bKeyMsg = 1;
        draw_with_cursor(true);
        page_.bKeyMsg = 0;
    }

    tagPAGE_NODE_S& page_;
    const Nodes& nodes_;
    const std::function<void()>& draw_;
};

} // namespace

void for_each_state(tagPAGE_NODE_S& page, const Nodes& nodes, const std::function<void()>& draw)
{
    Page states(page, nodes, draw);
    if (page.enLayout == PAGE_LAYOUT_ICON) {
        states.draw_icons();
    } else {
        states.draw_rows();
    }
}

} // namespace pages
