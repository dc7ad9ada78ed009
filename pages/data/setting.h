// One setting of the camera: what values it can have.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "pages/data/errors.h"

namespace pages {

enum class SettingKind { Option, Integer, Text, HexColor };

/// The words for them.
struct KindName {
    const char* name;
    SettingKind kind;
};
inline constexpr KindName kind_names[] = {{"option", SettingKind::Option},
                                          {"integer", SettingKind::Integer},
                                          {"text", SettingKind::Text},
                                          {"color", SettingKind::HexColor}};
const char* name_of(SettingKind kind);

/// A setting is known by its parent key, empty for none, and its own key.
struct SettingId {
    std::string parent;
    std::string key;
};

bool operator<(const SettingId& a, const SettingId& b);

/// "'key'", or "'key' of 'parent'": how messages name a setting.
std::string to_string(const SettingId& id);

struct Setting {
    SettingId id;
    SettingKind kind = SettingKind::Text;
    std::vector<std::string> options; ///< Option only
    std::int32_t min = 0;             ///< the range of Integer and HexColor
    std::int32_t max = 0;
    std::int32_t step = 1;
    std::string unit; ///< shown behind the number by front ends, may be empty
    std::string default_text;
    Place place; ///< in the definitions
};

/// Whether a text is an address such as 192.168.1.120: four numbers up to 255, without zeros in front.
bool is_address(const std::string& text);
/// Whether all values of a setting must be addresses: so it is when its default is one, as the default of each setting
/// must be that a page shows as an address.
bool holds_address(const Setting& setting);

/// Why the setting can't have this value, in words; empty when it can. All values are texts: an option's key, a
/// decimal number, a text of at most 15 bytes or an address, six hexadecimal digits.
std::string problem_with(const Setting& setting, const std::string& text);

/// The number in the text of an Integer or HexColor setting. The text must fit the setting.
std::int32_t number_of(const Setting& setting, const std::string& text);

/// The text of a number, as the settings store it.
std::string text_of(const Setting& setting, std::int32_t number);

} // namespace pages
