// Finds what doesn't fit among what a page shows.
#pragma once

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "pages/data/rule.h"
#include "pages/measure/shown.h"

namespace pages {

/// The rules that measured pages are judged by, for the documents.
const std::vector<Rule>& measure_rules();

class Judge {
public:
    explicit Judge(const ResourceFolder& folder) : folder_(folder) {}

    /// One state of a page. All that stays the same in other states, styles and sizes is told once.
    void take(const PageFile& page, const View& view, const Shown& shown);

    std::vector<TextRoom> rooms() const;
    std::vector<Finding> findings() const;

private:
    using Looks = std::set<std::tuple<std::string, std::uint32_t, bool>>; ///< language, style, whether it is 4k

    struct Room {
        TextRoom worst;
        Looks too_narrow;
    };
    /// Texts that don't fit for one cause.
    struct Cut {
        TextRoom worst;
        Looks looks;
        std::set<const Element*> elements;
        Place place;
        std::string expected; ///< of a page, on which no language fits; empty for a text
    };
    struct Fault {
        const char* rule;
        const Element* element;
        std::string what;
        int pixels;
        Looks looks;
    };

    void take_rooms(const PageFile& page, const View& view, const Shown& shown);
    void take_foot(const PageFile& page, const View& view, const Shown& shown);
    void take_overlaps(const PageFile& page, const View& view, const Shown& shown);
    void take_overlap(const PageFile& page, const View& view, const Shown& shown, const ShownText& text,
                      std::size_t other);
    /// By the page's limit on texts, whose cause it is that they don't fit in most languages.
    std::set<const Attribute*> tight_limits() const;
    std::map<std::string, Cut> cuts() const;
    void add_cut(const Room& room, bool of_page, std::map<std::string, Cut>& cuts) const;
    Finding finding_of(const Cut& cut) const;
    void add(const std::string& cause, const View& view, Fault fault);
    std::string words_of(const Looks& looks) const;

    const ResourceFolder& folder_;
    std::map<std::tuple<const Element*, Role, std::string, std::string>, Room> rooms_;
    std::map<std::string, Fault> faults_; ///< by cause
};

} // namespace pages
