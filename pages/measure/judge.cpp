#include "pages/measure/judge.h"

#include <algorithm>
#include <utility>

namespace pages {
namespace {

constexpr const char* cut_rule = "text-cut";
constexpr const char* overlap_rule = "text-overlap";
constexpr const char* foot_rule = "below-foot";

std::string pixels(int count) { return std::to_string(count) + (count == 1 ? " pixel" : " pixels"); }

std::string quoted(const std::string& text) { return "'" + text + "'"; }

/// "German, French": all of them are none worth a word.
std::string list_of(const std::set<std::string>& some, std::size_t all)
{
    std::string words;
    for (const std::string& one : some) {
        words += some.size() == all ? "" : (words.empty() ? "" : ", ") + one;
    }
    return words;
}

bool is_below(const ShownText& text, const Shown& shown)
{
    return text.node != nullptr && bottom_of(shown.marks[text.mark].rect) > shown.foot;
}

} // namespace

const char* name_of(Role role)
{
    static constexpr const char* names[] = {"title", "label", "value", "message", "caption"};
    return names[static_cast<int>(role)];
}

const std::vector<Rule>& measure_rules()
{
    static const std::vector<Rule> rules = {
        {cut_rule, Severity::Error, "A text is wider than its place: its end is cut, or runs over what stands there.",
         nullptr},
        {overlap_rule, Severity::Error, "A text lies over another, a line or a picture.", nullptr},
        {foot_rule, Severity::Error, "Rows lie below the menu, or over its hints or its message line.", nullptr},
        {"missing-glyph", Severity::Error, "A font has no picture of a character.", nullptr},
    };
    return rules;
}

void Judge::take(const PageFile& page, const View& view, const Shown& shown)
{
    take_rooms(page, view, shown);
    take_foot(page, view, shown);
    take_overlaps(page, view, shown);
}

void Judge::take_rooms(const PageFile& page, const View& view, const Shown& shown)
{
    for (const ShownText& text : shown.texts) {
        const Mark& mark = shown.marks[text.mark];
        const TextRoom room{text.key, mark.name, page.name, text.element, text.role, view, mark.rect.w, text.room};
        const auto [entry, added] =
            rooms_.try_emplace({text.element, text.role, text.key, view.language}, Room{room, {}});
        Room& known = entry->second;
        if (!added && room.left() < known.worst.left()) {
            known.worst = room;
        }
        if (room.left() < 0) {
            known.too_narrow.insert({view.language, view.style, view.uhd});
        }
    }
}

void Judge::take_foot(const PageFile& page, const View& view, const Shown& shown)
{
    std::set<const Node*> rows;
    const ShownText* first = nullptr;
    int lowest = 0;
    for (const ShownText& text : shown.texts) {
        if (is_below(text, shown)) {
            rows.insert(text.node);
            first = first == nullptr ? &text : first;
            lowest = std::max(lowest, bottom_of(shown.marks[text.mark].rect));
        }
    }
    if (first != nullptr) {
        const bool covered = shown.foot < bottom_of(shown.area);
        const std::string where = covered ? "into the hints or the message line" : "below the edge";
        add(page.name, view,
            {foot_rule,
             first->element,
             std::to_string(rows.size()) + (rows.size() == 1 ? " row reaches " : " rows reach ") + where + ", from " +
                 quoted(shown.marks[first->mark].name) + " on",
             lowest - shown.foot,
             {}});
    }
}

void Judge::take_overlaps(const PageFile& page, const View& view, const Shown& shown)
{
    for (const ShownText& text : shown.texts) {
        if (is_below(text, shown)) {
            continue; // it has been told of
        }
        for (std::size_t i = 0; i < shown.marks.size(); ++i) {
            const bool same = i == text.mark || (text.node != nullptr && shown.owners[i] == text.node);
            if (!same && shown.marks[i].kind != MarkKind::Text && overlap(text.core, shown.marks[i].rect)) {
                take_overlap(page, view, shown, text, i);
            }
        }
        for (const ShownText* other = &text + 1; other != shown.texts.data() + shown.texts.size(); ++other) {
            if ((other->node != text.node || text.node == nullptr) && overlap(text.core, other->core) &&
                !is_below(*other, shown)) {
                take_overlap(page, view, shown, text, other->mark);
            }
        }
    }
}

void Judge::take_overlap(const PageFile& page, const View& view, const Shown& shown, const ShownText& text,
                         std::size_t other)
{
    const Mark& mark = shown.marks[other];
    const SDL_Rect& rect = mark.rect;
    const int deep = std::min(bottom_of(text.core), bottom_of(rect)) - std::max(text.core.y, rect.y);
    const std::string name = std::string(name_of(text.role)) + " " + quoted(shown.marks[text.mark].name);
    const std::string what = mark.kind == MarkKind::Fill ? "a line strikes through the " + name
                             : mark.kind == MarkKind::Picture
                                 ? "the " + name + " lies over the picture " + quoted(mark.name)
                                 : "the " + name + " lies over " + quoted(mark.name);
    const std::string against = mark.kind == MarkKind::Text ? "" : mark.name;
    add(page.name + '\n' + to_string(text.element->place) + '\n' + std::to_string(static_cast<int>(mark.kind)) +
            against,
        view, {overlap_rule, text.element, what, deep, {}});
}

void Judge::add(const std::string& cause, const View& view, Fault fault)
{
    const auto [entry, added] = faults_.try_emplace(fault.rule + ('\n' + cause), fault);
    Fault& known = entry->second;
    if (fault.pixels > known.pixels) {
        fault.looks = std::move(known.looks);
        known = std::move(fault);
    }
    known.looks.insert({view.language, view.style, view.uhd});
}

std::string Judge::words_of(const Looks& looks) const
{
    std::set<std::string> languages;
    std::set<std::string> styles;
    std::set<std::string> sizes;
    for (const auto& [language, style, uhd] : looks) {
        languages.insert(language);
        styles.insert("style " + std::to_string(style));
        sizes.insert(uhd ? "4k" : "1080p");
    }
    std::string words;
    for (const std::string& part :
         {list_of(languages, folder_.languages.size()), list_of(styles, style_count), list_of(sizes, 2)}) {
        words += part.empty() ? "" : (words.empty() ? "" : ", ") + part;
    }
    return words.empty() ? "" : " (" + words + ")";
}

std::vector<TextRoom> Judge::rooms() const
{
    std::vector<TextRoom> rooms;
    for (const auto& [place, room] : rooms_) {
        rooms.push_back(room.worst);
    }
    const auto order = [](const TextRoom& room) {
        const Place& place = room.element->place;
        return std::tie(room.page, place.line, place.column, room.role, room.key, room.view.language);
    };
    std::sort(rooms.begin(), rooms.end(), [&](const TextRoom& a, const TextRoom& b) { return order(a) < order(b); });
    return rooms;
}

std::map<std::string, Judge::Room> Judge::cuts() const
{
    std::map<std::string, Room> cuts;
    for (const auto& [place, room] : rooms_) {
        const TextRoom& worst = room.worst;
        if (worst.left() >= 0) {
            continue;
        }
        const std::string text = worst.key.empty() ? worst.text : worst.view.language + '\n' + worst.key;
        const auto [entry, added] = cuts.try_emplace(worst.page + '\n' + name_of(worst.role) + '\n' + text, room);
        Room& known = entry->second;
        known.too_narrow.insert(room.too_narrow.begin(), room.too_narrow.end());
        const auto order = [](const TextRoom& one) {
            return std::make_tuple(one.left(), one.element->place.line, one.element->place.column);
        };
        if (order(worst) < order(known.worst)) {
            known.worst = worst;
        }
    }
    return cuts;
}

std::vector<Finding> Judge::findings() const
{
    std::vector<Finding> findings;
    for (const auto& [cause, cut] : cuts()) {
        const TextRoom& worst = cut.worst;
        findings.push_back({worst.element->place, Severity::Error, cut_rule,
                            "the " + std::string(name_of(worst.role)) + " " + quoted(worst.text) + " is " +
                                pixels(-worst.left()) + " too wide" + words_of(cut.too_narrow),
                            "at most " + std::to_string(worst.room) + " at " + (worst.view.uhd ? "4k" : "1080p")});
    }
    for (const auto& [cause, fault] : faults_) {
        findings.push_back({fault.element->place, Severity::Error, fault.rule,
                            fault.what + ", by " + pixels(fault.pixels) + words_of(fault.looks), ""});
    }
    const auto order = [](const Finding& finding) {
        return std::tie(finding.place.file, finding.place.line, finding.place.column, finding.what);
    };
    std::sort(findings.begin(), findings.end(),
              [&](const Finding& a, const Finding& b) { return order(a) < order(b); });
    return findings;
}

} // namespace pages
