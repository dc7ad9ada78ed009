// What an item shows has something behind it: a setting of its kind, or a fact of the camera.
#include "pages/check/setting_rules.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "menu/core/led_color.h"
#include "menu/core/value_status.h"
#include "osd_types.h"
#include "pages/check/rule_tables.h"
#include "pages/grammar/page_walk.h"

namespace pages {
namespace {

constexpr const char* settings_file = "settings.json";

std::string index_of(const Element& item) { return item.value(osdAttrName(ATTR_ITEM_INDEX)); }

bool is_numerical(const Element& item) { return item.value(osdAttrName(ATTR_VAL_TYPE)) == "NUMERICAL"; }

/// The setting that an item shows, and the kind that the menu reads it as.
struct Wanted {
    SettingId id;
    SettingKind kind;
};

/// None for an item that shows no setting, or of which another rule tells that it can't be found.
std::optional<Wanted> wanted_by(const ResourceFolder& folder, const Element& item)
{
    const auto zone = folder.definitions.zones.find(item.value(osdAttrName(ATTR_DATA_ZONE)));
    const bool led = osdLedByteFind(index_of(item).c_str()) != nullptr;
    const SettingId id{zone == folder.definitions.zones.end() ? "" : zone->second,
                       led ? OSD_KEY_LED_COLOR : index_of(item)};
    const bool lost = zone == folder.definitions.zones.end() && item.find(osdAttrName(ATTR_DATA_ZONE)) != nullptr;
    if (lost || item.find(osdAttrName(ATTR_ITEM_INDEX)) == nullptr) {
        return std::nullopt;
    }
    const auto kind = kind_of(item);
    if (kind == CONST_TXT && item.find(osdAttrName(ATTR_SHOW_VALUE)) != nullptr) {
        return Wanted{id, id.key == OSD_KEY_IP_ADDR ? SettingKind::Text : SettingKind::Option};
    }
    if (!has_value(context_of(item)) || !kind) {
        return std::nullopt;
    }
    if (has_options(kind)) {
        return Wanted{id, SettingKind::Option};
    }
    if (is_one_of(kind, {COMMON, KEY_WITH_MSG})) {
        return Wanted{id, !is_numerical(item) ? SettingKind::Option
                          : led               ? SettingKind::HexColor
                                              : SettingKind::Integer};
    }
    return kind == EDITABLE ? std::optional(Wanted{id, SettingKind::Text}) : std::nullopt;
}

void find_strange_zones(const ResourceFolder& folder, const Complain& complain)
{
    const auto& zones = folder.definitions.zones;
    if (are_settings_broken(folder) || is_unusable(folder, settings_file, "'zones'")) {
        return;
    }
    for_each_item(folder, [&](const Element& item) {
        const Attribute* zone = item.find(osdAttrName(ATTR_DATA_ZONE));
        if (zone != nullptr && zones.count(zone->value) == 0) {
            const auto of_parent =
                std::find_if(zones.begin(), zones.end(), [&](const auto& row) { return row.second == zone->value; });
            complain(zone->place, "there is no zone '" + zone->value + "'",
                     of_parent == zones.end() ? one_of(zone->value, keys_of(zones))
                                              : "'" + of_parent->first + "', which has this parent");
        }
    });
}

/// Where a setting of this key can be had, in words: in another zone, or under another key.
std::string advice(const Definitions& definitions, const SettingId& wanted)
{
    std::vector<std::string> keys;
    std::string otherwise = "one in settings.json";
    for (const auto& [id, setting] : definitions.settings) {
        if (id.key == wanted.key && id.parent.empty()) {
            return "no DataZone, as the setting has no parent";
        }
        if (id.key == wanted.key) {
            otherwise = "\"parent\": \"" + wanted.parent + "\" on line " + std::to_string(setting.place.line) +
                        " of settings.json";
        }
        for (const auto& [zone, parent] : definitions.zones) {
            if (id.key == wanted.key && id.parent == parent) {
                return "DataZone=\"" + zone + "\"";
            }
        }
        if (id.parent == wanted.parent) {
            keys.push_back(id.key);
        }
    }
    return nearest_or(wanted.key, keys, otherwise);
}

/// Whether a parent belongs to no setting at all: a mistake of the zone.
bool is_parent_of_none(const Definitions& definitions, const std::string& parent)
{
    return !parent.empty() && std::none_of(definitions.settings.begin(), definitions.settings.end(),
                                           [&](const auto& setting) { return setting.first.parent == parent; });
}

bool is_setting_unusable(const ResourceFolder& folder, const std::string& key)
{
    return are_settings_broken(folder) || is_unusable(folder, settings_file, "setting '" + key + "'");
}

bool is_of_language(const SettingId& id)
{
    return id.parent == language_setting.parent && id.key == language_setting.key;
}

/// That no setting chooses the language is told of settings.json itself.
void find_missing_settings(const ResourceFolder& folder, const Complain& complain)
{
    const Definitions& definitions = folder.definitions;
    for_each_item(folder, [&](const Element& item) {
        const auto wanted = wanted_by(folder, item);
        if (wanted && !is_of_language(wanted->id) && definitions.settings.count(wanted->id) == 0 &&
            !is_setting_unusable(folder, wanted->id.key) && !is_unusable(folder, settings_file, "'zones'") &&
            !is_parent_of_none(definitions, wanted->id.parent)) {
            complain(item.place_of(osdAttrName(ATTR_ITEM_INDEX)), "there is no setting " + to_string(wanted->id),
                     advice(definitions, wanted->id));
        }
    });
}

void find_wrong_kinds(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const auto wanted = wanted_by(folder, item);
        const Setting* found = setting_of(folder, item);
        const bool told = (context_of(item) == NAME_BAR_VAL) != is_numerical(item); // by the rule for value types
        if (found != nullptr && found->kind != wanted->kind && !told && !is_setting_unusable(folder, wanted->id.key)) {
            complain(item.place_of(osdAttrName(ATTR_ITEM_INDEX)),
                     "setting " + to_string(wanted->id) + " is of kind " + name_of(found->kind),
                     std::string("kind ") + name_of(wanted->kind));
        }
    });
}

/// What an item offers; none where another rule tells of its options.
std::optional<std::vector<std::string>> offer_of(const Element& item)
{
    std::vector<std::string> offered;
    for (const auto& option : item.children) {
        if (option->find(osdAttrName(ATTR_MODE_INDEX)) == nullptr || offered.size() == OSD_OPTION_MAX) {
            return std::nullopt;
        }
        offered.push_back(option->value(osdAttrName(ATTR_MODE_INDEX)));
    }
    return offered;
}

void find_no_addresses(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const Setting* setting = setting_of(folder, item);
        if (context_of(item) == NAME_IP_VAL && setting != nullptr && setting->kind == SettingKind::Text &&
            !is_address(setting->default_text)) {
            complain(setting->place,
                     "the default '" + setting->default_text + "' of setting " + to_string(setting->id) +
                         " is no address",
                     "one such as 192.168.1.120");
        }
    });
}

/// Takes out words that no language has a text for, each with what it is meant to be: another rule tells of them.
void forgive_misspelt(const ResourceFolder& folder, std::vector<std::string>& words, std::vector<std::string>& others)
{
    for (auto word = words.begin(); word != words.end();) {
        const auto has_text = [&](const auto& language) { return language.second.count(*word) > 0; };
        const auto meant = std::find(others.begin(), others.end(), nearest_word(*word, others));
        if (meant != others.end() && std::none_of(folder.languages.begin(), folder.languages.end(), has_text)) {
            others.erase(meant);
            word = words.erase(word);
        } else {
            ++word;
        }
    }
}

bool are_the_same(const ResourceFolder& folder, std::vector<std::string> offered, std::vector<std::string> options)
{
    std::sort(offered.begin(), offered.end());
    std::sort(options.begin(), options.end());
    std::vector<std::string> extra;
    std::vector<std::string> lacking;
    std::set_difference(offered.begin(), offered.end(), options.begin(), options.end(), std::back_inserter(extra));
    std::set_difference(options.begin(), options.end(), offered.begin(), offered.end(), std::back_inserter(lacking));
    forgive_misspelt(folder, extra, lacking);
    forgive_misspelt(folder, lacking, extra);
    return extra.empty() && lacking.empty();
}

void find_other_options(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const Setting* setting = setting_of(folder, item);
        const auto offered = offer_of(item);
        if (!has_options(kind_of(item)) || setting == nullptr || !offered ||
            is_setting_unusable(folder, setting->id.key)) {
            return;
        }
        const std::vector<std::string>& options = setting->options;
        if (setting->kind == SettingKind::Option && !are_the_same(folder, *offered, options)) {
            complain(item.place,
                     "item '" + index_of(item) + "' offers " + (offered->empty() ? "nothing" : joined(*offered)),
                     joined(options) + ", as the setting has them");
        }
    });
}

void find_strange_facts(const ResourceFolder& folder, const Complain& complain)
{
    std::map<std::string, tagSTATUS_KEY_S> sources;
    for (std::size_t i = 0; osdStatusKey(i).pcKey != nullptr; ++i) {
        sources.emplace(osdStatusKey(i).pcKey, osdStatusKey(i));
    }
    for_each_item(folder, [&](const Element& item) {
        const std::string key = index_of(item);
        const Place& place = item.place_of(osdAttrName(ATTR_ITEM_INDEX));
        const auto source = sources.find(key);
        if (kind_of(item) != STATUS || item.find(osdAttrName(ATTR_ITEM_INDEX)) == nullptr) {
            return;
        }
        if (source == sources.end()) {
            complain(place, "the camera knows no fact '" + key + "'", one_of(key, keys_of(sources)));
        } else if (source->second.pcParent != nullptr && !is_setting_unusable(folder, key)) {
            const SettingId id{source->second.pcParent, key};
            if (folder.definitions.settings.count(id) == 0) {
                complain(place, "there is no setting " + to_string(id), "one in settings.json");
            }
        }
    });
}

Place place_in_settings(const ResourceFolder& folder, const std::string& part)
{
    Place place = folder.definitions.places.of(part);
    place.file = settings_file;
    return place;
}

bool is_listed(const ResourceFolder& folder, const std::string& language)
{
    const auto& listed = folder.definitions.languages;
    return std::any_of(listed.begin(), listed.end(), [&](const auto& row) { return row.second == language; });
}

std::vector<std::string> unlisted_languages(const ResourceFolder& folder)
{
    std::vector<std::string> unlisted = keys_of(folder.languages);
    const auto listed = [&](const std::string& language) { return is_listed(folder, language); };
    unlisted.erase(std::remove_if(unlisted.begin(), unlisted.end(), listed), unlisted.end());
    return unlisted;
}

/// The file that is meant for a language: one with another ending, or else with a name like it.
std::string language_file_meant(const ResourceFolder& folder, const std::string& language)
{
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(folder.root / "lang", none)) {
        if (entry.path().stem() == language) {
            return "this name for lang/" + entry.path().filename().string();
        }
    }
    return nearest_or(language, unlisted_languages(folder), "one of lang/: " + joined(keys_of(folder.languages)));
}

void find_missing_languages(const ResourceFolder& folder, const Complain& complain)
{
    const std::vector<std::string> without = languages_without_file(folder);
    for (const auto& [option, language] : folder.definitions.languages) {
        if (std::count(without.begin(), without.end(), language) > 0 && !folder.languages.empty()) {
            complain(place_in_settings(folder, "/languages/" + option), "there is no file lang/" + language + ".json",
                     language_file_meant(folder, language));
        }
    }
}

void find_unlisted_languages(const ResourceFolder& folder, const Complain& complain)
{
    if (are_settings_broken(folder) || is_unusable(folder, settings_file, "'languages'")) {
        return;
    }
    const std::vector<std::string> unlisted = unlisted_languages(folder);
    std::set<std::string> meant; // by names without file, of which another rule tells
    for (const std::string& language : languages_without_file(folder)) {
        meant.insert(nearest_word(language, unlisted));
    }
    for (const std::string& language : unlisted) {
        if (meant.count(language) == 0) {
            complain({"lang/" + language + ".json"}, "nobody can choose the language '" + language + "'",
                     "a line for it in 'languages' of settings.json");
        }
    }
}

} // namespace

const Setting* setting_of(const ResourceFolder& folder, const Element& item)
{
    const auto wanted = wanted_by(folder, item);
    const auto found = wanted ? folder.definitions.settings.find(wanted->id) : folder.definitions.settings.end();
    return found == folder.definitions.settings.end() ? nullptr : &found->second;
}

std::vector<std::string> languages_without_file(const ResourceFolder& folder)
{
    std::vector<std::string> without;
    for (const auto& [option, language] : folder.definitions.languages) {
        if (folder.languages.count(language) == 0 && folder.broken.count("lang/" + language + ".json") == 0) {
            without.push_back(language);
        }
    }
    return without;
}

const std::vector<Rule>& setting_rules()
{
    static const std::vector<Rule> rules = {
        {"zone", Severity::Error, "A DataZone is one of 'zones' in settings.json.", find_strange_zones, Told::Once},
        {"no-setting", Severity::Error, "An item that shows a value has a setting.", find_missing_settings, Told::Once},
        {"setting-kind", Severity::Error, "The setting is of the kind that the item shows.", find_wrong_kinds,
         Told::Once},
        {"address", Severity::Error, "A setting that is shown as an address is one.", find_no_addresses, Told::Once},
        {"options", Severity::Error, "An item with options has those of its setting.", find_other_options},
        {"fact", Severity::Error, "A STATUS item shows something that the camera knows.", find_strange_facts,
         Told::Once},
        {"no-language", Severity::Error, "Each language of settings.json has its file.", find_missing_languages},
        {"unlisted-language", Severity::Warning, "Each language file is named in settings.json.",
         find_unlisted_languages},
    };
    return rules;
}

} // namespace pages
