#include "pages/measure/shown.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "menu/core/item.h"
#include "menu/core/layout.h"
#include "osd_menu.h"

namespace pages {
namespace {

constexpr float column_right = 0.95F; ///< of the menu's width: where the column of values ends

bool is_popup(const tagPAGE_NODE_S& page)
{
    return page.enLayout == PAGE_LAYOUT_HORIZONTAL || page.enLayout == PAGE_LAYOUT_HORIZONTAL_KETH;
}

class Reader {
public:
    Reader(const tagPAGE_NODE_S& page, const Nodes& nodes, const Element& root, Shown& shown)
        : page_(page), root_(root), shown_(shown)
    {
        for_each_node(nodes, [&](const Node& node) { by_label_[node.item->acItemName] = &node; });
    }

    void read()
    {
        find_area();
        for (std::size_t i = 0; i < shown_.marks.size(); ++i) {
            const Mark& mark = shown_.marks[i];
            if (mark.kind == MarkKind::Text) {
                read_text(i);
            }
            const bool owned = mark.kind == MarkKind::Text ? shown_.texts.back().node != nullptr : mark.frame.w > 0;
            shown_.owners.push_back(owned ? current_ : nullptr);
        }
        find_foot();
        for (ShownText& text : shown_.texts) {
            text.room = room_of(text);
            text.core = core_of(text);
        }
    }

private:
    /// Background and frame are filled first.
    void find_area()
    {
        const tagLAYOUT_S* layout = osdLayoutFind(page_.enLayout);
        const int frame = layout->s32Frame;
        shown_.area = *layout->pstRect;
        shown_.area = {shown_.area.x + frame, shown_.area.y + frame, shown_.area.w - 2 * frame,
                       shown_.area.h - 2 * frame};
        shown_.marks.erase(shown_.marks.begin(), shown_.marks.begin() + (frame > 0 ? 5 : 1));
    }

    void read_text(std::size_t i)
    {
        const auto label = by_label_.find(shown_.marks[i].source);
        if (label != by_label_.end()) {
            current_ = label->second;
            const Role role = page_.enLayout == PAGE_LAYOUT_ICON ? Role::Caption : Role::Label;
            add(i, current_, role, current_->item->acItemIndex, *current_->element);
        } else if (current_ != nullptr && is_last_text(i) && page_.bKeyMsg == 1) {
            add(i, nullptr, Role::Message, message_key(), root_);
        } else if (current_ != nullptr) {
            add(i, current_, Role::Value, current_->value_key, current_->element_of_value());
        } else if (page_.bTitle == 1 && shown_.texts.empty()) {
            add(i, nullptr, Role::Title, page_.acTitleKey, root_);
        } else {
            add(i, nullptr, Role::Message, root_.value("Msg"), root_);
        }
    }

    void add(std::size_t i, const Node* node, Role role, const std::string& key, const Element& element)
    {
        shown_.texts.push_back(
            {i, node, role, key, &element, 0, {}, role == Role::Title ? lost_of_title(shown_.marks[i]) : 0});
    }

    /// The menu joins title and number in a text of its own, whose end is cut.
    int lost_of_title(const Mark& mark) const
    {
        const std::string title = page_.acTitle;
        const std::string joined = page_.stTurn.bCurPagesNum == 0 ? title : title + "  " + page_.stTurn.acCurPagesNum;
        return static_cast<int>(joined.size() - std::min(joined.size(), mark.name.size()));
    }

    bool is_last_text(std::size_t i) const
    {
        return std::none_of(shown_.marks.begin() + static_cast<std::ptrdiff_t>(i) + 1, shown_.marks.end(),
                            [](const Mark& mark) { return mark.kind == MarkKind::Text; });
    }

    /// The item that waits lends the page its message.
    std::string message_key() const
    {
        for (const auto& [label, node] : by_label_) {
            if (osdTextEqual(node->item->acMsg, page_.acKeyMsg) && osdItemWaits(node->item)) {
                return node->item->acMsgKey;
            }
        }
        return "";
    }

    void find_foot()
    {
        shown_.foot = bottom_of(shown_.area);
        for (const ShownText& text : shown_.texts) {
            if (text.role == Role::Message && !is_popup(page_)) {
                shown_.foot = std::min(shown_.foot, shown_.marks[text.mark].rect.y);
            }
        }
        for (std::size_t i = shown_.marks.size(); page_.enLayout == PAGE_LAYOUT_VERTICAL_TOLVANE && i > 0; --i) {
            const Mark& mark = shown_.marks[i - 1]; // behind the rows come the rule, the hints and the message
            shown_.foot = std::min(shown_.foot, mark.rect.y);
            if (mark.kind == MarkKind::Fill) {
                return;
            }
        }
    }

    const Mark& mark_of(const ShownText& text) const { return shown_.marks[text.mark]; }

    int room_of(const ShownText& text) const
    {
        const SDL_Rect& rect = mark_of(text).rect;
        if (is_popup(page_)) {
            return text.node == nullptr ? shown_.area.w : shown_.area.w / std::max(1, text.node->item->s32ItemCnt);
        }
        switch (text.role) {
        case Role::Caption:
            return room_of_caption(*text.node);
        case Role::Value:
            return room_of_value(text);
        case Role::Label:
            return room_of_label(text);
        case Role::Title:
        case Role::Message:
            break;
        }
        return right_of(shown_.area) - rect.x;
    }

    /// As far as from the middle of an icon to that of the next.
    int room_of_caption(const Node& node) const
    {
        const int gap = shown_.area.w / 10;
        return page_.s32CountPerLine > 1 ? node.item->stRect.w + gap : shown_.area.w;
    }

    int room_of_value(const ShownText& text) const
    {
        const Mark& mark = mark_of(text);
        if (mark.frame.w == 0) {
            return static_cast<int>(static_cast<float>(shown_.area.w) * column_right) - mark.rect.x;
        }
        const int behind = text.mark + 1 < shown_.marks.size() && shown_.owners[text.mark + 1] == text.node
                               ? right_of(shown_.marks[text.mark + 1].rect) - right_of(mark.rect)
                               : 0; // the arrow
        return right_of(mark.frame) - mark.rect.x - behind;
    }

    /// Up to the value, or with the arrow behind it to the edge.
    int room_of_label(const ShownText& text) const
    {
        const SDL_Rect& rect = mark_of(text).rect;
        const int edge = right_of(shown_.area);
        if (text.node->item->enItemPos == ITEM_POS_CENTER) {
            return edge - 2 * (rect.x - (edge - rect.w) / 2);
        }
        for (std::size_t i = text.mark + 1; i < shown_.marks.size(); ++i) {
            const Mark& mark = shown_.marks[i];
            if (shown_.owners[i] == text.node) {
                return (mark.frame.w > 0 ? mark.frame.x : mark.rect.x) - rect.x;
            }
            if (page_.enLayout == PAGE_LAYOUT_VERTICAL_KETH && text.node->item->enAttr == SUBPAGE) {
                return edge - rect.x - (right_of(mark.rect) - right_of(rect));
            }
            break;
        }
        return edge - rect.x;
    }

    SDL_Rect core_of(const ShownText& text) const
    {
        SDL_Rect core = mark_of(text).ink;
        const int over = core.w - text.room;
        const bool centred = text.role == Role::Caption || is_popup(page_) ||
                             (text.node != nullptr && text.node->item->enItemPos == ITEM_POS_CENTER);
        if (over > 0) {
            core.x += centred ? over / 2 : 0;
            core.w = std::max(1, text.room);
        }
        return core;
    }

    const tagPAGE_NODE_S& page_;
    const Element& root_;
    Shown& shown_;
    std::unordered_map<const char*, const Node*> by_label_;
    const Node* current_ = nullptr;
};

} // namespace

Shown explain(const tagPAGE_NODE_S& page, const Nodes& nodes, const Element& root, std::vector<Mark> marks)
{
    Shown shown{std::move(marks), {}, {}, {}, 0};
    Reader(page, nodes, root, shown).read();
    return shown;
}

} // namespace pages
