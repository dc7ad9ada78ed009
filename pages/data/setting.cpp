#include "pages/data/setting.h"

#include <algorithm>
#include <arpa/inet.h>
#include <charconv>
#include <cstdio>
#include <tuple>

#include "osd_types.h"
#include "pages/data/words.h"

namespace pages {
namespace {

bool parse_whole(const std::string& text, int base, std::int32_t& number)
{
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, base);
    return result.ec == std::errc() && result.ptr == end;
}

std::string problem_with_number(const Setting& setting, const std::string& text)
{
    std::int32_t number = 0;
    const bool fits = parse_whole(text, 10, number) && number >= setting.min && number <= setting.max;
    if (fits && text == std::to_string(number)) {
        return "";
    }
    if (fits) {
        return "'" + text + "' can't be used, expected '" + std::to_string(number) + "', without zeros in front";
    }
    return "'" + text + "' can't be used, expected a whole number from " + std::to_string(setting.min) + " to " +
           std::to_string(setting.max);
}

std::string problem_with_text(const Setting& setting, const std::string& text)
{
    if (text.size() >= OSD_CFG_VALUE_LEN) {
        return "'" + text + "' is too long, expected at most 15 bytes";
    }
    return !holds_address(setting) || is_address(text)
               ? ""
               : "'" + text + "' is no address, expected one such as " + setting.default_text;
}

} // namespace

const char* name_of(SettingKind kind)
{
    return std::find_if(std::begin(kind_names), std::end(kind_names),
                        [&](const KindName& row) { return row.kind == kind; })
        ->name;
}

bool operator<(const SettingId& a, const SettingId& b) { return std::tie(a.parent, a.key) < std::tie(b.parent, b.key); }

std::string to_string(const SettingId& id)
{
    return "'" + id.key + "'" + (id.parent.empty() ? "" : " of '" + id.parent + "'");
}

bool is_address(const std::string& text)
{
    in_addr address{};
    return ::inet_pton(AF_INET, text.c_str(), &address) == 1;
}

bool holds_address(const Setting& setting)
{
    return setting.kind == SettingKind::Text && is_address(setting.default_text);
}

std::string problem_with(const Setting& setting, const std::string& text)
{
    std::int32_t number = 0;
    switch (setting.kind) {
    case SettingKind::Option:
        return std::count(setting.options.begin(), setting.options.end(), text) > 0
                   ? ""
                   : "'" + text + "' is no option, expected " + one_of(text, setting.options);
    case SettingKind::Integer:
        return problem_with_number(setting, text);
    case SettingKind::Text:
        return problem_with_text(setting, text);
    case SettingKind::HexColor:
        return text.size() == 6 && parse_whole(text, 16, number) && number >= 0
                   ? ""
                   : "'" + text + "' is no color, expected six hexadecimal digits";
    }
    return "unknown kind";
}

std::int32_t number_of(const Setting& setting, const std::string& text)
{
    std::int32_t number = 0;
    (void)parse_whole(text, setting.kind == SettingKind::HexColor ? 16 : 10,
                      number); // the text was checked when it came
    return number;
}

std::string text_of(const Setting& setting, std::int32_t number)
{
    if (setting.kind != SettingKind::HexColor) {
        return std::to_string(number);
    }
    char digits[16];
    (void)std::snprintf(digits, sizeof digits, "%06X", static_cast<unsigned>(number) & 0xFFFFFFU);
    return digits;
}

} // namespace pages
