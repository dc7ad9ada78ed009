// What an item shows has something behind it: a setting of its kind, or a fact of the camera.
#include "pages/check/rule_tables.h"

#include <algorithm>

#include "menu/core/led_color.h"
#include "menu/core/value_status.h"
#include "osd_types.h"
#include "pages/check/page_walk.h"

namespace pages {
namespace {

constexpr const char* settings_file = "settings.json";

const char* name_of(SettingKind kind)
{
    switch (kind) {
    case SettingKind::Option:
        return "option";
    case SettingKind::Integer:
        return "integer";
    case SettingKind::Text:
        return "text";
    case SettingKind::HexColor:
        return "color";
    }
    return "";
}

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
            complain(zone->place, "there is no zone '" + zone->value + "'", one_of(zone->value, keys_of(zones)));
        }
    });
}

/// Where a setting of this key can be had, in words: in another zone, or under another key.
std::string advice(const Definitions& definitions, const SettingId& wanted)
{
    std::vector<std::string> keys;
    for (const auto& [id, setting] : definitions.settings) {
        if (id.key == wanted.key && id.parent.empty()) {
            return "no DataZone, as the setting has no parent";
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
    return nearest_or(wanted.key, keys, "one in settings.json");
}

bool is_setting_unusable(const ResourceFolder& folder, const std::string& key)
{
    return are_settings_broken(folder) || is_unusable(folder, settings_file, "setting '" + key + "'");
}

void find_missing_settings(const ResourceFolder& folder, const Complain& complain)
{
    const Definitions& definitions = folder.definitions;
    for_each_item(folder, [&](const Element& item) {
        const auto wanted = wanted_by(folder, item);
        if (wanted && definitions.settings.count(wanted->id) == 0 && !is_setting_unusable(folder, wanted->id.key) &&
            !is_unusable(folder, settings_file, "'zones'")) {
            complain(item.place_of(osdAttrName(ATTR_ITEM_INDEX)), "there is no setting " + to_string(wanted->id),
                     advice(definitions, wanted->id));
        }
    });
}

void find_wrong_kinds(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const auto wanted = wanted_by(folder, item);
        const auto found = wanted ? folder.definitions.settings.find(wanted->id) : folder.definitions.settings.end();
        const bool told = context_of(item) == NAME_BAR_VAL && !is_numerical(item); // by the rule for value types
        if (found != folder.definitions.settings.end() && found->second.kind != wanted->kind && !told &&
            !is_setting_unusable(folder, wanted->id.key)) {
            complain(item.place_of(osdAttrName(ATTR_ITEM_INDEX)),
                     "setting " + to_string(wanted->id) + " is of kind " + name_of(found->second.kind),
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

void find_other_options(const ResourceFolder& folder, const Complain& complain)
{
    for_each_item(folder, [&](const Element& item) {
        const auto wanted = wanted_by(folder, item);
        const auto found = wanted ? folder.definitions.settings.find(wanted->id) : folder.definitions.settings.end();
        const auto offered = offer_of(item);
        if (!has_options(kind_of(item)) || found == folder.definitions.settings.end() || !offered ||
            is_setting_unusable(folder, wanted->id.key)) {
            return;
        }
        const std::vector<std::string>& options = found->second.options;
        if (found->second.kind == SettingKind::Option &&
            !std::is_permutation(offered->begin(), offered->end(), options.begin(), options.end())) {
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

void find_missing_languages(const ResourceFolder& folder, const Complain& complain)
{
    for (const auto& [option, language] : folder.definitions.languages) {
        const std::string file = "lang/" + language + ".json";
        if (folder.languages.count(language) == 0 && folder.broken.count(file) == 0 && !folder.languages.empty()) {
            complain(
                place_in_settings(folder, "/languages/" + option), "there is no file " + file,
                nearest_or(language, keys_of(folder.languages), "one of lang/: " + joined(keys_of(folder.languages))));
        }
    }
}

void find_unlisted_languages(const ResourceFolder& folder, const Complain& complain)
{
    const auto& listed = folder.definitions.languages;
    if (are_settings_broken(folder) || is_unusable(folder, settings_file, "'languages'")) {
        return;
    }
    for (const auto& [language, texts] : folder.languages) {
        const auto is_named = [name = language](const auto& row) { return row.second == name; };
        if (std::none_of(listed.begin(), listed.end(), is_named)) {
            complain({"lang/" + language + ".json"}, "nobody can choose the language '" + language + "'",
                     "a line for it in 'languages' of settings.json");
        }
    }
}

} // namespace

const std::vector<Rule>& setting_rules()
{
    static const std::vector<Rule> rules = {
        {"zone", Severity::Error, "A DataZone is one of 'zones' in settings.json.", find_strange_zones},
        {"no-setting", Severity::Error, "An item that shows a value has a setting.", find_missing_settings},
        {"setting-kind", Severity::Error, "The setting is of the kind that the item shows.", find_wrong_kinds},
        {"options", Severity::Error, "An item with options has those of its setting.", find_other_options},
        {"fact", Severity::Error, "A STATUS item shows something that the camera knows.", find_strange_facts},
        {"no-language", Severity::Error, "Each language of settings.json has its file.", find_missing_languages},
        {"unlisted-language", Severity::Warning, "Each language file is named in settings.json.",
         find_unlisted_languages},
    };
    return rules;
}

} // namespace pages
