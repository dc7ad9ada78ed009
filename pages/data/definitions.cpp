#include "pages/data/definitions.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

#include "osd_types.h"
#include "pages/data/errors.h"
#include "pages/data/json_file.h"
#include "pages/data/texts.h"
#include "pages/data/words.h"

namespace pages {
namespace {

using nlohmann::json;

constexpr std::size_t max_value_bytes = OSD_CFG_VALUE_LEN - 1;
constexpr std::size_t max_list_bytes = OSD_CFG_LIST_LEN - 1;
constexpr std::string_view no_option_bytes(":\0", 2);

const std::vector<std::string> fact_names = {"FwVersion",   "IspVersion",     "AfVersion", "AiVersion",
                                             "VideoFormat", "DeviceName",     "SN",        "Mac",
                                             "NdiVersion",  "FullNdiVersion", "NdiStatus", "DeviceType"};

const std::vector<std::string> value_fields = {"options", "min", "max", "step", "unit", "default"};
const std::vector<std::string> setting_fields = [] {
    std::vector<std::string> fields = {"key", "parent", "kind"};
    fields.insert(fields.end(), value_fields.begin(), value_fields.end());
    return fields;
}();

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

std::map<std::string, std::string> read_text_map(const json& object, const JsonPlaces& places, const std::string& name,
                                                 std::vector<BadInput>& mistakes)
{
    FieldReader reader(object, places, "/" + name, "'" + name + "'");
    std::map<std::string, std::string> texts;
    for (const auto& [key, value] : object.items()) {
        collect(mistakes, [&, key = key] { texts[key] = reader.text(key, 0, max_text_bytes); });
    }
    return texts;
}

SettingKind read_kind(FieldReader& reader)
{
    const std::string word = reader.text("kind", 1, max_text_bytes);
    std::vector<std::string> words;
    for (const KindName& row : kind_names) {
        if (word == row.name) {
            return row.kind;
        }
        words.emplace_back(row.name);
    }
    reader.ignore(value_fields);
    reader.complain("kind", "unknown kind '" + word + "'", one_of(word, words));
}

void check_option_list(const FieldReader& reader, const std::vector<std::string>& options)
{
    std::size_t joined = 0;
    std::set<std::string> seen;
    for (const std::string& option : options) {
        if (option.empty() || option.size() > max_value_bytes || option.find_first_of(no_option_bytes) != option.npos) {
            reader.complain("options", "option '" + option + "' can't be used",
                            "1 to 15 bytes and neither ':' nor a zero byte");
        }
        if (!seen.insert(option).second) {
            reader.complain("options", "option '" + option + "' stands twice", "each once");
        }
        joined += option.size() + 1;
    }
    if (options.empty() || options.size() > OSD_OPTION_MAX || joined - 1 > max_list_bytes) {
        reader.complain("options", "'options' holds " + std::to_string(options.size()) + " entries",
                        "1 to 32, together at most 271 bytes with ':' between them");
    }
}

std::vector<std::string> read_options(FieldReader& reader)
{
    const json& list = reader.field("options", "a list of texts");
    const auto is_text = [](const json& entry) { return entry.is_string(); };
    if (!list.is_array() || !std::all_of(list.begin(), list.end(), is_text)) {
        reader.complain("options", "'options' is no list of texts", "[\"Off\", \"On\"] or the like");
    }
    auto options = list.get<std::vector<std::string>>();
    check_option_list(reader, options);
    return options;
}

std::int32_t read_step(FieldReader& reader)
{
    const std::int32_t step = reader.integer("step");
    if (step < 1) {
        reader.complain("step", "'step' is " + std::to_string(step), "1 or more");
    }
    return step;
}

void read_range(FieldReader& reader, Setting& setting, std::vector<BadInput>& mistakes)
{
    const std::size_t before = mistakes.size();
    collect(mistakes, [&] { setting.min = reader.integer("min"); });
    collect(mistakes, [&] { setting.max = reader.integer("max"); });
    const bool is_range = mistakes.size() == before;
    collect(mistakes, [&] { setting.step = read_step(reader); });
    collect(mistakes, [&] { setting.unit = reader.has("unit") ? reader.text("unit", 0, max_value_bytes) : ""; });
    if (is_range && setting.min >= setting.max) {
        reader.complain("min", "'min' is " + std::to_string(setting.min), "'min' below 'max'");
    }
}

void read_kind_fields(FieldReader& reader, Setting& setting, std::vector<BadInput>& mistakes)
{
    switch (setting.kind) {
    case SettingKind::Option:
        setting.options = read_options(reader);
        break;
    case SettingKind::Integer:
        read_range(reader, setting, mistakes);
        break;
    case SettingKind::HexColor:
        setting.max = 0xFFFFFF;
        setting.step = reader.has("step") ? read_step(reader) : 1;
        break;
    case SettingKind::Text:
        break;
    }
}

void read_value_fields(FieldReader& reader, Setting& setting, std::vector<BadInput>& mistakes)
{
    collect(mistakes, [&] { read_kind_fields(reader, setting, mistakes); });
    collect(mistakes, [&] {
        setting.default_text = setting.kind == SettingKind::Integer ? std::to_string(reader.integer("default"))
                                                                    : reader.text("default", 0, max_value_bytes);
    });
}

/// All mistakes of a setting; it can be used only without one.
Setting read_setting(const json& object, const JsonPlaces& places, const std::string& part,
                     std::vector<BadInput>& mistakes)
{
    Setting setting;
    setting.place = places.of(part);
    FieldReader first(object, places, part, "a setting");
    first.expect(setting_fields);
    setting.id.key = first.text("key", 1, max_text_bytes);
    FieldReader reader(object, places, part, "setting '" + setting.id.key + "'");
    reader.expect(setting_fields);
    reader.ignore({"key"});
    const std::size_t before = mistakes.size();
    collect(mistakes, [&] {
        setting.id.parent = reader.has("parent") ? reader.text("parent", 0, max_text_bytes) : "";
        reader.ignore({"parent"});
    });
    collect(mistakes, [&] {
        setting.kind = read_kind(reader);
        read_value_fields(reader, setting, mistakes);
    });
    reader.tell_other_fields(mistakes);
    const std::string problem = mistakes.size() > before ? "" : problem_with(setting, setting.default_text);
    if (!problem.empty()) {
        reader.complain("default", "'default': " + problem, "");
    }
    return setting;
}

void add_setting(const json& object, const JsonPlaces& places, const std::string& part, Definitions& definitions,
                 std::vector<BadInput>& mistakes)
{
    const std::size_t before = mistakes.size();
    Setting setting = read_setting(object, places, part, mistakes);
    const SettingId id = setting.id;
    const auto twin = definitions.settings.find(id);
    if (twin != definitions.settings.end()) {
        throw BadInput(places.of(part + "/key"), "setting " + to_string(id) +
                                                     " is defined twice, expected one of this and line " +
                                                     std::to_string(twin->second.place.line));
    }
    if (mistakes.size() == before) {
        definitions.settings.emplace(id, std::move(setting));
    }
}

void read_settings(const json& list, const JsonPlaces& places, Definitions& definitions,
                   std::vector<BadInput>& mistakes)
{
    if (!list.is_array()) {
        throw BadInput(places.of("/settings"), "'settings' is " + words_of_value(list) + ", expected a list, [ ... ]");
    }
    for (std::size_t i = 0; i < list.size(); ++i) {
        collect(mistakes,
                [&] { add_setting(list[i], places, "/settings/" + std::to_string(i), definitions, mistakes); });
    }
}

/// By event number.
constexpr const char* event_facts[] = {"AfVersion",   "IspVersion",     "AiVersion", "FwVersion",
                                       "VideoFormat", "DeviceName",     "SN",        "Mac",
                                       "NdiVersion",  "FullNdiVersion", "NdiStatus", custom_color};

std::map<std::string, std::string> read_facts(const json& object, const JsonPlaces& places,
                                              std::vector<BadInput>& mistakes)
{
    FieldReader reader(object, places, "/facts", "'facts'");
    reader.expect(fact_names);
    std::map<std::string, std::string> facts;
    for (const std::string& name : fact_names) {
        collect(mistakes, [&] { facts[name] = reader.text(name, 0, max_text_bytes); });
    }
    reader.tell_other_fields(mistakes);
    return facts;
}

/// Whether a mistake with these words at its begin is told.
bool is_told(const std::vector<BadInput>& mistakes, const std::string& begin)
{
    return std::any_of(mistakes.begin(), mistakes.end(),
                       [&](const BadInput& mistake) { return mistake.words().compare(0, begin.size(), begin) == 0; });
}

void check_languages(const Definitions& definitions, const JsonPlaces& places, std::vector<BadInput>& mistakes)
{
    const auto found = definitions.settings.find(language_setting);
    if (is_told(mistakes, "'settings'") || is_told(mistakes, "setting 'Language'") ||
        (is_told(mistakes, "'languages'") && definitions.languages.empty())) {
        return;
    }
    if (found == definitions.settings.end() || found->second.kind != SettingKind::Option) {
        throw BadInput(places.of("/settings"),
                       "no setting chooses the language, expected a setting 'Language' of kind option, without parent");
    }
    const Setting& setting = found->second;
    for (const std::string& option : setting.options) {
        if (definitions.languages.count(option) == 0 && !is_told(mistakes, "'languages': '" + option + "'")) {
            mistakes.emplace_back(setting.place, "setting 'Language': option '" + option +
                                                     "' is missing in 'languages', expected \"" + option +
                                                     "\": \"name of its file in lang/\"");
        }
    }
    for (const auto& [key, name] : definitions.languages) {
        if (std::count(setting.options.begin(), setting.options.end(), key) == 0) {
            mistakes.emplace_back(places.of("/languages/" + key),
                                  "'languages': '" + key + "' is no option of the setting 'Language', expected " +
                                      one_of(key, setting.options));
        }
    }
}

void check_zones(const Definitions& definitions, const JsonPlaces& places, std::vector<BadInput>& mistakes)
{
    std::set<std::string> parents;
    for (const auto& [id, setting] : definitions.settings) {
        if (!id.parent.empty()) {
            parents.insert(id.parent);
        }
    }
    for (const auto& [zone, parent] : definitions.zones) {
        if (parents.count(parent) == 0 && !is_told(mistakes, "'settings'")) {
            mistakes.emplace_back(places.of("/zones/" + zone),
                                  "zone '" + zone + "': no setting has the parent '" + parent + "', expected " +
                                      nearest_or(parent, {parents.begin(), parents.end()}, "the parent of a setting"));
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
    FieldReader reader(root, places, "", "");
    reader.expect({"languages", "facts", "zones", "settings", allowance_member});
    reader.ignore({allowance_member});
    Definitions definitions;
    collect(mistakes, [&] {
        definitions.languages = read_text_map(reader.field("languages", "an object"), places, "languages", mistakes);
    });
    collect(mistakes, [&] { definitions.facts = read_facts(reader.field("facts", "an object"), places, mistakes); });
    collect(mistakes,
            [&] { definitions.zones = read_text_map(reader.field("zones", "an object"), places, "zones", mistakes); });
    collect(mistakes, [&] { read_settings(reader.field("settings", "a list"), places, definitions, mistakes); });
    collect(mistakes, [&] { read_allowances(root, places, definitions.allowances); });
    reader.tell_other_fields(mistakes);
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
