#include "pages/data/xml_slip.h"

#include <algorithm>

namespace pages {
namespace {

bool begins_with(std::string_view text, std::string_view part) { return text.substr(0, part.size()) == part; }

bool ends_with(std::string_view text, std::string_view part)
{
    return text.size() >= part.size() && text.substr(text.size() - part.size()) == part;
}

bool is_quote(char letter) { return letter == '"' || letter == '\''; }

using Part = std::string_view;

bool is_no_page(Part before, Part here) { return before.empty() && !begins_with(here, "<"); }
bool is_zero(Part, Part here) { return begins_with(here, Part("\0", 1)); }
bool is_control(Part, Part here) { return !here.empty() && static_cast<unsigned char>(here.front()) < ' '; }
bool is_merge_mark(Part before, Part here) { return ends_with(before, "<") && begins_with(here, "<<<<"); }
bool is_comment(Part, Part here) { return begins_with(here, "<!--"); }
bool is_dash(Part before, Part) { return ends_with(before, "--"); }
bool is_value(Part before, Part here) { return ends_with(before, "=") && !begins_with(here, "\""); }
bool is_tag(Part, Part here) { return begins_with(here, "<"); }
bool is_blank_tag(Part before, Part) { return ends_with(before, "<"); }

/// "“" and its relatives: three bytes with the same two at the begin.
bool is_curly(Part, Part here) { return here.size() > 2 && begins_with(here, "\xE2\x80") && here[2] < '\xA0'; }

bool is_foreign(Part, Part here) { return !here.empty() && static_cast<unsigned char>(here.front()) >= 0x80; }

/// Behind the last "&" neither its ";" nor the end of the value has come.
bool is_ampersand(Part before, Part)
{
    const std::size_t mark = before.rfind('&');
    return mark != before.npos && before.find_first_of(";\"'<>", mark) == before.npos;
}

/// The quotation mark that was to open this value has closed the one before.
bool is_open_value(Part before, Part)
{
    return before.size() > 1 && is_quote(before.back()) && before[before.size() - 2] == '=';
}

bool is_joined(Part before, Part) { return !before.empty() && is_quote(before.back()); }

struct XmlSlip {
    bool (*fits)(Part before, Part here);
    const char* expected;
};

/// The first one that fits counts.
constexpr XmlSlip slips_of_xml[] = {
    {is_no_page, "<?xml ...?> or <Page ...> at the begin of the file"},
    {is_zero, "a file without zero bytes"},
    {is_control, "no control character"},
    {is_merge_mark, "one of both versions: this is a mark of a merge"},
    {is_comment, "no comment in a tag"},
    {is_dash, "no -- in a comment"},
    {is_curly, "straight quotation marks, \"...\""},
    {is_foreign, "plain letters, blanks and = outside of values"},
    {is_value, "quotation marks around the value"},
    {is_ampersand, "&amp; for &"},
    {is_tag, "a quotation mark at the end of the value before"},
    {is_open_value, "a quotation mark at the end of the value before"},
    {is_joined, "a blank between attributes"},
    {is_blank_tag, "a name right behind <"},
};

} // namespace

const char* expected_in_xml(std::string_view text, std::size_t at)
{
    const Part before = text.substr(0, std::min(at, text.size()));
    const Part here = text.substr(before.size());
    const auto* found = std::find_if(std::begin(slips_of_xml), std::end(slips_of_xml),
                                     [&](const XmlSlip& slip) { return slip.fits(before, here); });
    return found == std::end(slips_of_xml) ? "names, each with = and its value in quotation marks" : found->expected;
}

} // namespace pages
