#include "pages/data/definitions.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

#include "osd_types.h"
#include "pages/data/errors.h"
#include "pages/data/json_file.h"
#include "pages/data/texts.h"

namespace pages {
namespace {

using nlohmann::json;

constexpr std::size_t max_value_bytes = OSD_CFG_VALUE_LEN - 1;
constexpr std::size_t max_list_bytes = OSD_CFG_LIST_LEN - 1;
constexpr std::string_view no_option_bytes(":\0", 2);

struct KindName {
    const char* name;
    SettingKind kind;
};
constexpr KindName kind_names[] = {{"option", SettingKind::Option},
                                   {"integer", SettingKind::Integer},
                                   {"text", SettingKind::Text},
                                   {"color", SettingKind::HexColor}};

constexpr const char* fact_names[] = {"FwVersion",   "IspVersion",     "AfVersion", "AiVersion",
                                      "VideoFormat", "DeviceName",     "SN",        "Mac",
                                      "NdiVersion",  "FullNdiVersion", "NdiStatus", "DeviceType"};

/// Runs the body, whose mistake is one of several.
template <typename Body>
void collect(std::vector<BadInput>& mistakes, Body body)
{
    try {
        body();
    } catch (const BadInput& mistake) {
        mistakes.push_back(mistake);
    }
}

std::map<std::string, std::string> read_text_map(const json& object, const Place& place, const std::string& name)
{
    FieldReader reader(object, place, "'" + name + "'");
    std::map<std::string, std::string> texts;
    for (const auto& [key, value] : object.items()) {
        texts[key] = reader.text(key, 0, max_text_bytes);
    }
    return texts;
}

SettingKind read_kind(FieldReader& reader)
{
    const std::string word = reader.text("kind", 1, max_text_bytes);
    for (const KindName& row : kind_names) {
        if (word == row.name) {
            return row.kind;
        }
    }
    reader.complain("unknown kind '" + word + "', expected option, integer, text or color");
}

void check_option_list(const FieldReader& reader, const std::vector<std::string>& options)
{
    std::size_t joined = 0;
    std::set<std::string> seen;
    for (const std::string& option : options) {
        if (option.empty() || option.size() > max_value_bytes || option.find_first_of(no_option_bytes) != option.npos) {
            reader.complain("option '" + option + "' must have 1 to 15 bytes and neither ':' nor a zero byte");
        }
        if (!seen.insert(option).second) {
            reader.complain("option '" + option + "' stands twice");
        }
        joined += option.size() + 1;
    }
    if (options.empty() || options.size() > OSD_OPTION_MAX || joined - 1 > max_list_bytes) {
        reader.complain("'options' must hold 1 to 32 entries, together at most 271 bytes with ':' between them");
    }
}

std::vector<std::string> read_options(FieldReader& reader)
{
    const json& list = reader.field("options");
    const auto is_text = [](const json& entry) { return entry.is_string(); };
    if (!list.is_array() || !std::all_of(list.begin(), list.end(), is_text)) {
        reader.complain("'options' must be a list of texts");
    }
    auto options = list.get<std::vector<std::string>>();
    check_option_list(reader, options);
    return options;
}

std::int32_t read_step(FieldReader& reader)
{
    const std::int32_t step = reader.integer("step");
    if (step < 1) {
        reader.complain("expected a 'step' of 1 or more");
    }
    return step;
}

void read_range(FieldReader& reader, Setting& setting)
{
    setting.min = reader.integer("min");
    setting.max = reader.integer("max");
    setting.step = read_step(reader);
    if (reader.has("unit")) {
        setting.unit = reader.text("unit", 0, max_value_bytes);
    }
    if (setting.min >= setting.max) {
        reader.complain("expected 'min' below 'max'");
    }
}

void read_kind_fields(FieldReader& reader, Setting& setting)
{
    switch (setting.kind) {
    case SettingKind::Option:
        setting.options = read_options(reader);
        break;
    case SettingKind::Integer:
        read_range(reader, setting);
        break;
    case SettingKind::HexColor:
        setting.max = 0xFFFFFF;
        setting.step = reader.has("step") ? read_step(reader) : 1;
        break;
    case SettingKind::Text:
        break;
    }
}

Setting read_setting(const json& object, const Place& place)
{
    Setting setting;
    setting.place = place;
    FieldReader first(object, place, "a setting");
    setting.id.key = first.text("key", 1, max_text_bytes);
    FieldReader reader(object, place, "setting '" + setting.id.key + "'");
    (void)reader.field("key");
    if (reader.has("parent")) {
        setting.id.parent = reader.text("parent", 0, max_text_bytes);
    }
    setting.kind = read_kind(reader);
    read_kind_fields(reader, setting);
    setting.default_text = setting.kind == SettingKind::Integer ? std::to_string(reader.integer("default"))
                                                                : reader.text("default", 0, max_value_bytes);
    reader.refuse_other_fields();
    const std::string problem = problem_with(setting, setting.default_text);
    if (!problem.empty()) {
        reader.complain("'default': " + problem);
    }
    return setting;
}

void add_setting(const json& object, const Place& place, Definitions& definitions)
{
    Setting setting = read_setting(object, place);
    const SettingId id = setting.id;
    if (!definitions.settings.emplace(id, std::move(setting)).second) {
        throw BadInput(place, "setting " + to_string(id) + " is defined twice");
    }
}

void read_settings(const json& list, const JsonPlaces& places, Definitions& definitions,
                   std::vector<BadInput>& mistakes)
{
    if (!list.is_array()) {
        throw BadInput(places.of("/settings"), "'settings' must be a list, [ ... ]");
    }
    for (std::size_t i = 0; i < list.size(); ++i) {
        collect(mistakes, [&] { add_setting(list[i], places.of("/settings/" + std::to_string(i)), definitions); });
    }
}

/// By event number.
constexpr const char* event_facts[] = {"AfVersion",   "IspVersion",     "AiVersion", "FwVersion",
                                       "VideoFormat", "DeviceName",     "SN",        "Mac",
                                       "NdiVersion",  "FullNdiVersion", "NdiStatus", custom_color};

std::map<std::string, std::string> read_facts(const json& object, const Place& place)
{
    FieldReader reader(object, place, "'facts'");
    std::map<std::string, std::string> facts;
    for (const char* name : fact_names) {
        facts[name] = reader.text(name, 0, max_text_bytes);
    }
    reader.refuse_other_fields();
    return facts;
}

void check_languages(const Definitions& definitions, const JsonPlaces& places, std::vector<BadInput>& mistakes)
{
    const auto found = definitions.settings.find(language_setting);
    if (found == definitions.settings.end() || found->second.kind != SettingKind::Option) {
        throw BadInput(places.of(""), "there must be a setting 'Language' of kind option, without parent");
    }
    const Setting& setting = found->second;
    for (const std::string& option : setting.options) {
        if (definitions.languages.count(option) == 0) {
            mistakes.emplace_back(setting.place,
                                  "setting 'Language': option '" + option + "' is missing in 'languages'");
        }
    }
    for (const auto& [key, name] : definitions.languages) {
        if (std::count(setting.options.begin(), setting.options.end(), key) == 0) {
            mistakes.emplace_back(places.of("/languages/" + key),
                                  "'languages': '" + key + "' is no option of the setting 'Language'");
        }
    }
}

void check_zones(const Definitions& definitions, const JsonPlaces& places, std::vector<BadInput>& mistakes)
{
    std::set<std::string> parents;
    for (const auto& [id, setting] : definitions.settings) {
        parents.insert(id.parent);
    }
    for (const auto& [zone, parent] : definitions.zones) {
        if (parents.count(parent) == 0) {
            mistakes.emplace_back(places.of("/zones/" + zone),
                                  "zone '" + zone + "': no setting has the parent '" + parent + "'");
        }
    }
}

} // namespace

const char* fact_of_event(int event)
{
    const auto index = static_cast<std::size_t>(event);
    return event >= 0 && index < std::size(event_facts) ? event_facts[index] : "";
}

std::string option_of_language(const Definitions& definitions, const std::string& wanted)
{
    std::string known;
    for (const auto& [option, name] : definitions.languages) {
        if (wanted == option || wanted == name) {
            return option;
        }
        known += (known.empty() ? "" : ", ") + name;
    }
    throw BadInput("unknown language '" + wanted + "', expected one of " + known);
}

std::string language_named(const Definitions& definitions, const std::string& wanted)
{
    const auto option = definitions.languages.find(wanted);
    return option == definitions.languages.end() ? wanted : option->second;
}

Definitions read_definitions(const std::filesystem::path& path, std::vector<BadInput>& mistakes)
{
    JsonPlaces places(path.string());
    const json root = load_json_object(path, &places);
    FieldReader reader(root, places.of(""));
    Definitions definitions;
    collect(mistakes, [&] {
        definitions.languages = read_text_map(reader.field("languages"), places.of("/languages"), "languages");
    });
    collect(mistakes, [&] { definitions.facts = read_facts(reader.field("facts"), places.of("/facts")); });
    collect(mistakes, [&] { definitions.zones = read_text_map(reader.field("zones"), places.of("/zones"), "zones"); });
    collect(mistakes, [&] { read_settings(reader.field("settings"), places, definitions, mistakes); });
    collect(mistakes, [&] { read_allowances(root, places, definitions.allowances); });
    if (reader.has(allowance_member)) {
        (void)reader.field(allowance_member);
    }
    collect(mistakes, [&] { reader.refuse_other_fields(); });
    collect(mistakes, [&] { check_languages(definitions, places, mistakes); });
    collect(mistakes, [&] { check_zones(definitions, places, mistakes); });
    definitions.places = std::move(places);
    return definitions;
}

Definitions load_definitions(const std::filesystem::path& path)
{
    std::vector<BadInput> mistakes;
    Definitions definitions = read_definitions(path, mistakes);
    if (!mistakes.empty()) {
        throw BadInput(mistakes.front());
    }
    return definitions;
}

} // namespace pages
