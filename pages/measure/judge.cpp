#include "pages/measure/judge.h"

#include <algorithm>
#include <utility>

#include "menu/core/attr.h"

namespace pages {
namespace {

constexpr const char* cut_rule = "text-cut";
constexpr const char* overlap_rule = "text-overlap";
constexpr const char* foot_rule = "below-foot";

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

/// What of a page leaves its texts so much room, and what helps where no language fits.
struct PageLimit {
    const Attribute* attribute; ///< null where it is the text itself
    std::string expected;
};

PageLimit limit_of(const TextRoom& room)
{
    const Element* page = room.element;
    while (page->parent != nullptr) {
        page = page->parent;
    }
    if (room.role == Role::Caption) {
        return {page->find(osdAttrName(ATTR_COUNT_PER_LINE)), "by fewer icons in a line or shorter texts"};
    }
    return {room.lost > 0 ? page->find(osdAttrName(ATTR_CUR_PAGES_NUM)) : nullptr, "by a shorter CurPagesNum"};
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
        {cut_rule, Severity::Error, "A text is longer than its place: its end is cut, or runs over what stands there.",
         nullptr},
        {overlap_rule, Severity::Error, "A text lies over another, a line or a picture.", nullptr},
        {foot_rule, Severity::Error, "Rows lie below the menu, or over its hints or its message line.", nullptr},
        {"font", Severity::Error, "The fonts by which pages are measured are there.", nullptr},
        {"missing-glyph", Severity::Error, "A font has no picture of a character.", nullptr, Told::Once},
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
        const TextRoom room{text.key, mark.name,   page.name, text.element, text.role,
                            view,     mark.rect.w, text.room, text.lost};
        const auto [entry, added] =
            rooms_.try_emplace({text.element, text.role, text.key, view.language}, Room{room, {}});
        Room& known = entry->second;
        if (!added && is_tighter(room, known.worst)) {
            known.worst = room;
        }
        if (!room.fits()) {
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
        sizes.insert(size_name(uhd));
    }
    std::string words;
    for (const std::string& part : {list_of(languages, folder_.languages.size()), list_of(styles, style_count),
                                    list_of(sizes, size_names.size())}) {
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

/// A text of a page alone is a cause; of the languages' texts one is, wherever it shows in that role.
void Judge::add_cut(const Room& room, bool of_page, std::map<std::string, Cut>& cuts) const
{
    const TextRoom& text = room.worst;
    const PageLimit limit = limit_of(text);
    const Texts& texts = folder_.languages.at(text.view.language);
    const auto known_text = texts.find(text.key);
    const bool own = of_page || known_text == texts.end();
    const Place& place = of_page ? limit.attribute->place : own ? text.element->place : known_text->second.place;
    const std::string what = of_page ? limit.expected : own ? text.text : text.view.language + '\n' + text.key;
    const std::string cause = (own ? text.page + '\n' : "") + name_of(text.role) + '\n' + what;
    Cut& cut = cuts.try_emplace(cause, Cut{text, {}, {}, place, of_page ? limit.expected : ""}).first->second;
    cut.looks.insert(room.too_narrow.begin(), room.too_narrow.end());
    cut.elements.insert(text.element);
    const auto line = [](const TextRoom& one) { return std::tie(one.page, one.element->place.line); };
    if (is_tighter(text, cut.worst) || (!is_tighter(cut.worst, text) && line(text) < line(cut.worst))) {
        cut.worst = text;
    }
}

Finding Judge::finding_of(const Cut& cut) const
{
    const TextRoom& worst = cut.worst;
    const int more = static_cast<int>(cut.elements.size()) - 1;
    const bool cut_by_number = worst.lost > 0;
    const std::string misfit = cut_by_number ? counted(worst.lost, "byte") + " too long with the number behind it"
                                             : counted(-worst.left(), "pixel") + " too wide";
    const std::string fit = cut_by_number ? std::to_string(max_text_bytes) + " bytes with two blanks and the number"
                                          : std::to_string(worst.room) + " at " + size_name(worst.view.uhd);
    return {cut.place,
            Severity::Error,
            cut_rule,
            "the " + std::string(name_of(worst.role)) + " " + quoted(worst.text) + " is " + misfit + " on page " +
                worst.page + words_of(cut.looks) + (more > 0 ? ", and at " + counted(more, "more place") : ""),
            "at most " + fit + (cut.expected.empty() ? "" : ", " + cut.expected),
            cut.place.file == worst.element->place.file ? "" : worst.key};
}

std::set<const Attribute*> Judge::tight_limits() const
{
    std::map<const Attribute*, std::set<std::string>> languages; // in which they don't fit
    for (const auto& [place, room] : rooms_) {
        const PageLimit limit = limit_of(room.worst);
        if (!room.worst.fits() && limit.attribute != nullptr) {
            languages[limit.attribute].insert(room.worst.view.language);
        }
    }
    std::set<const Attribute*> tight;
    for (const auto& [limit, cut] : languages) {
        if (cut.size() > 1 && 2 * cut.size() > folder_.languages.size()) {
            tight.insert(limit);
        }
    }
    return tight;
}

std::map<std::string, Judge::Cut> Judge::cuts() const
{
    const std::set<const Attribute*> tight = tight_limits();
    std::map<std::string, Cut> cuts;
    for (const auto& [place, room] : rooms_) {
        if (!room.worst.fits()) {
            add_cut(room, tight.count(limit_of(room.worst).attribute) > 0, cuts);
        }
    }
    return cuts;
}

std::vector<Finding> Judge::findings() const
{
    std::vector<Finding> findings;
    std::set<std::string> crowded; // files whose icons stand too close
    for (const auto& [cause, cut] : cuts()) {
        findings.push_back(finding_of(cut));
        crowded.insert(cut.expected.empty() ? "" : cut.place.file);
    }
    for (const auto& [cause, fault] : faults_) {
        if (fault.rule == overlap_rule && crowded.count(fault.element->place.file) > 0) {
            continue;
        }
        findings.push_back({fault.element->place, Severity::Error, fault.rule,
                            fault.what + ", by " + counted(fault.pixels, "pixel") + words_of(fault.looks), "", ""});
    }
    const auto order = [](const Finding& finding) {
        return std::tie(finding.place.file, finding.place.line, finding.place.column, finding.what);
    };
    std::sort(findings.begin(), findings.end(),
              [&](const Finding& a, const Finding& b) { return order(a) < order(b); });
    return findings;
}

} // namespace pages
