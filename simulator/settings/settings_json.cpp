#include "simulator/settings/settings_json.h"

#include <fstream>
#include <map>

#include "simulator/base/data.h"

namespace sim {
namespace {

using nlohmann::json;

const Setting& named(const Settings& settings, const std::string& name, const std::string& place)
{
    try {
        return settings.by_name(name);
    } catch (const UnknownSetting& error) {
        throw UnknownSetting(place + ": " + error.what());
    }
}

} // namespace

json setting_object(const Settings& settings, const Setting& setting)
{
    json object = {
        {"name", name_of(setting.id)},   {"parent", setting.id.parent},         {"key", setting.id.key},
        {"kind", name_of(setting.kind)}, {"value", settings.value(setting.id)}, {"default", setting.default_text}};
    if (setting.kind == SettingKind::Option) {
        object["options"] = setting.options;
    } else if (setting.kind == SettingKind::Integer) {
        object.update({{"min", setting.min}, {"max", setting.max}, {"step", setting.step}, {"unit", setting.unit}});
    }
    return object;
}

json settings_list(const Settings& settings)
{
    json list = json::array();
    for (const auto& [id, setting] : settings.definitions()) {
        list.push_back(setting_object(settings, setting));
    }
    return {{"settings", list}};
}

std::string value_text(const json& value, const std::string& place)
{
    if (value.is_number_integer()) {
        return value.dump();
    }
    if (!value.is_string()) {
        throw BadInput(place + ": a value must be a text or a whole number");
    }
    return value.get<std::string>();
}

json export_settings(const Settings& settings)
{
    json values = json::object();
    for (const auto& [id, setting] : settings.definitions()) {
        values[name_of(id)] = settings.value(id);
    }
    return values;
}

std::size_t import_settings(Settings& settings, const json& values, const std::string& place)
{
    if (!values.is_object()) {
        throw BadInput(place + ": expected an object of setting to value, { ... }");
    }
    std::map<SettingId, std::string> texts;
    for (const auto& [name, value] : values.items()) {
        const Setting& setting = named(settings, name, place);
        const std::string here = place + ": setting '" + name + "'";
        const std::string text = value_text(value, here);
        const std::string problem = problem_with(setting, text);
        if (!problem.empty()) {
            throw BadInput(here + ": " + problem);
        }
        if (!texts.emplace(setting.id, text).second) {
            throw BadInput(here + " stands there twice, as '" + name_of(setting.id) + "' as well");
        }
    }
    settings.set_all(texts);
    return texts.size();
}

void export_settings_file(const Settings& settings, const std::filesystem::path& path)
{
    const std::string text = export_settings(settings).dump(2, ' ', false, json::error_handler_t::replace) + "\n";
    if (!(std::ofstream(path, std::ios::binary) << text << std::flush)) {
        throw BadInput(path.string() + ": can't be written");
    }
}

std::size_t import_settings_file(Settings& settings, const std::filesystem::path& path)
{
    return import_settings(settings, load_json_object(path), path.string());
}

} // namespace sim
