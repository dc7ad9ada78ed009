#include "pages/map/walk.h"

#include <algorithm>
#include <array>
#include <deque>
#include <queue>
#include <set>
#include <utility>

#include "menu/core/flat_list.h"
#include "pages/map/way_book.h"

namespace pages {
namespace {

const char* name_of(Key key)
{
    constexpr std::array<const char*, 8> names = {"menu", "advanced", "up", "down", "left", "right", "home", "return"};
    return names.at(static_cast<std::size_t>(key));
}

/// Beyond so many states of a page only where the cursor stands tells them apart, not all that shows.
constexpr std::size_t told_apart = 600;

Keys joined(Keys keys, Key key)
{
    keys.push_back(key);
    return keys;
}

Keys joined(Keys keys, const Keys& more)
{
    keys.insert(keys.end(), more.begin(), more.end());
    return keys;
}

bool has_option_lists(const tagITEM_NODE_S& item) { return item.enAttr == SUBITEM || item.enAttr == MSG_WITH_SUBITEM; }

bool is_question(const tagPAGE_NODE_S& page)
{
    return page.enLayout == PAGE_LAYOUT_HORIZONTAL || page.enLayout == PAGE_LAYOUT_HORIZONTAL_KETH;
}

/// The page that home opens on an item; empty for none.
std::string target_of(const tagITEM_NODE_S& item)
{
    return item.enAttr == SUBPAGE                                         ? item.acSubPage
           : item.enAttr == CONFIRM_POP || item.enAttr == CONFIRM_POP_BTN ? item.acConfirmPage
                                                                          : "";
}

/// The keys that may lead on from where the cursor stands.
Keys keys_for(const tagPAGE_NODE_S& page, const tagITEM_NODE_S& item)
{
    Keys keys;
    if (!is_question(page)) {
        keys = {Key::Down, Key::Up};
    }
    if (page.enLayout == PAGE_LAYOUT_ICON || is_question(page) || has_option_lists(item) ||
        (page.enLayout == PAGE_LAYOUT_VERTICAL_KETH && item.enAttr == SUBPAGE)) {
        keys.push_back(Key::Right);
        keys.push_back(Key::Left);
    }
    const bool waits = item.enAttr == MSG_WITH_SUBITEM && item.s32CurIdx != item.s32SavedIdx;
    if (waits || !target_of(item).empty()) {
        keys.push_back(Key::Home);
    }
    return keys;
}

class Walker {
public:
    Walker(const ResourceFolder& folder, const View& view) : menu_(folder, view), book_(folder) {}

    Walk go()
    {
        to_do_.push({Key::Menu});
        to_do_.push({Key::Advanced});
        while (!to_do_.empty()) {
            const Keys next = to_do_.top();
            to_do_.pop();
            arrive(next);
        }
        book_.find_too_deep([this](const std::vector<std::string>& stack, const Keys& keys) {
            press(menu_, keys);
            return menu_.open_pages().size() == OSD_PAGE_MAX && menu_.open_pages().back() != stack.back();
        });
        return book_.take();
    }

private:
    struct Longer {
        bool operator()(const Keys& a, const Keys& b) const { return a.size() > b.size(); } // the shortest on top
    };

    void arrive(const Keys& keys)
    {
        press(menu_, keys);
        const std::vector<std::string> stack = menu_.open_pages();
        // A page without a file opens too, without a name; the way to it is told as one that ends.
        if (stack.empty() || stack.back().empty() || !book_.add_page(stack, keys)) {
            return;
        }
        keys_ = keys;
        stack_ = stack;
        page_ = stack.back();
        if (menu_.rows().empty() || osdPageSelected(menu_.top()) == nullptr) {
            book_.add_end(page_, nullptr, "nothing on the page can be selected");
            return;
        }
        if (is_question(*menu_.top())) {
            answer();
        } else {
            look_round();
        }
    }

    /// What the cursor meets on the page, by the fewest presses.
    void look_round()
    {
        seen_ = {state()};
        opened_.clear();
        std::deque<Keys> places = {{}};
        while (!places.empty()) {
            const Keys here = places.front();
            places.pop_front();
            press(menu_, joined(keys_, here));
            const tagITEM_NODE_S& item = *osdPageSelected(menu_.top());
            note(item, here);
            for (const Key key : keys_for(*menu_.top(), item)) {
                try_key(here, key, places);
            }
        }
    }

    void note(const tagITEM_NODE_S& item, const Keys& here)
    {
        const bool changes =
            item.enAttr == COMMON || item.enAttr == KEY_WITH_MSG || item.enAttr == EDITABLE || has_option_lists(item);
        if (changes) {
            book_.add_setting(item, page_, joined(keys_, here));
        }
    }

    void try_key(const Keys& here, Key key, std::deque<Keys>& places)
    {
        press(menu_, joined(keys_, here));
        const tagITEM_NODE_S item = *osdPageSelected(menu_.top()); // which the key may take away
        const std::string target = key == Key::Down ? menu_.top()->stTurn.acNextPage : target_of(item);
        const bool enters = key == Key::Right && menu_.top()->enLayout == PAGE_LAYOUT_VERTICAL_KETH;
        const bool opens = key == Key::Home || (enters && item.enAttr == SUBPAGE);
        if (opens && !target.empty() && !opened_.insert({target, key}).second) {
            return; // another row, or another option, leads to the same
        }
        menu_.press(key); // drawn, as the library may tell of what it can't draw
        book_.add_lines(menu_.take_lines());
        const std::vector<std::string> stack = menu_.open_pages();
        const Keys keys = joined(here, key);
        if (stack.size() > stack_.size()) {
            book_.add_way({page_, target, keys}, item);
            to_do_.push(joined(keys_, keys));
        } else if (stack == stack_ && opens && !target.empty()) {
            book_.add_refused_way({page_, target, keys}, item, stack.size());
        } else if (stack == stack_ && seen_.insert(state()).second) {
            places.push_back(keys);
        }
    }

    /// Presses No.
    void answer()
    {
        for (std::size_t i = menu_.rows().size(); i > 0; --i) {
            const std::string item = osdPageSelected(menu_.top())->acItemIndex;
            if (item == "No") {
                menu_.press(Key::Home);
                if (menu_.open_pages() == stack_) {
                    book_.add_end(page_, nullptr, "the answer No does nothing, the question stays");
                }
                return;
            }
            menu_.press(Key::Right);
        }
        book_.add_end(page_, nullptr, "a question without the answer No");
    }

    /// Where the cursor stands, and what else shows.
    std::string state()
    {
        const tagITEM_NODE_S* item = osdPageSelected(menu_.top());
        std::string state;
        for (const tagITEM_NODE_S* row : menu_.rows()) {
            const bool here = row == item;
            if (here || seen_.size() < told_apart) {
                state += std::string(row->acItemIndex) + (here ? ">" : "") + "\n";
            }
            if (here && has_option_lists(*row)) {
                state += std::to_string(row->s32CurIdx) + " " + std::to_string(row->s32SavedIdx) + "\n";
            }
        }
        return state;
    }

    Menu menu_;
    WayBook book_;
    std::priority_queue<Keys, std::vector<Keys>, Longer> to_do_;

    // of the page that is looked at
    std::string page_;
    std::vector<std::string> stack_;
    Keys keys_;
    std::set<std::string> seen_;
    std::set<std::pair<std::string, Key>> opened_;
};

} // namespace

std::string words_of(const Keys& keys)
{
    std::string words;
    for (auto key = keys.begin(); key != keys.end();) {
        const auto next = std::find_if(key, keys.end(), [&](Key other) { return other != *key; });
        words += std::string(words.empty() ? "" : ", ") + name_of(*key);
        words += next - key > 1 ? " ×" + std::to_string(next - key) : "";
        key = next;
    }
    return words;
}

void press(Menu& menu, const Keys& keys)
{
    menu.close_all();
    menu.forget_values();
    for (const Key key : keys) {
        menu.press_unseen(key);
    }
}

Walk walk(const ResourceFolder& folder, const View& view) { return Walker(folder, view).go(); }

} // namespace pages
