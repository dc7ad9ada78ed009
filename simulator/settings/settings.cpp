#include "simulator/settings/settings.h"

#include <algorithm>
#include <iterator>

#include "simulator/base/log.h"

namespace sim {

std::string name_of(const SettingId& id) { return id.parent.empty() ? id.key : id.parent + "." + id.key; }

Settings::Settings(const std::map<SettingId, Setting>& definitions, SettingsStore& store)
    : definitions_(definitions), store_(store), values_(stored_values())
{
}

Settings::Values Settings::stored_values() const
{
    Values values;
    for (const auto& [id, setting] : definitions_) {
        values[id] = setting.default_text;
    }
    put_what_fits(store_.load_all(), "stored", values);
    return values;
}

void Settings::put_what_fits(const Values& from, const char* whose, Values& into) const
{
    for (const auto& [id, text] : from) {
        const Setting* setting = find(id);
        const std::string problem = setting == nullptr ? "no such setting" : problem_with(*setting, text);
        if (problem.empty()) {
            into[id] = text;
        } else {
            log_line(LogLevel::Warning, "settings", whose + (" value of " + to_string(id)) + " not used: " + problem);
        }
    }
}

const Setting* Settings::find(const SettingId& id) const
{
    const auto found = definitions_.find(id);
    return found == definitions_.end() ? nullptr : &found->second;
}

const Setting* Settings::find_key(const std::string& key) const
{
    const auto has_key = [&key](const auto& entry) { return entry.first.key == key; };
    const auto found = std::find_if(definitions_.begin(), definitions_.end(), has_key);
    return found == definitions_.end() ? nullptr : &found->second;
}

const Setting& Settings::by_name(const std::string& name) const
{
    const Setting* found = nullptr;
    std::vector<std::string> names; // of all with this key
    for (const auto& [id, setting] : definitions_) {
        if (name_of(id) == name) {
            return setting;
        }
        if (id.key == name) {
            found = &setting;
            names.push_back(name_of(id));
        }
    }
    if (found == nullptr) {
        throw UnknownSetting("no setting '" + name +
                             "', expected PARENT.KEY or KEY as the settings definitions have it");
    }
    if (names.size() > 1) {
        throw UnknownSetting("several settings are called '" + name + "', expected one of " + joined(names));
    }
    return *found;
}

std::string Settings::value(const SettingId& id) const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return values_.at(id);
}

std::int32_t Settings::number(const SettingId& id) const { return number_of(definitions_.at(id), value(id)); }

void Settings::check(const SettingId& id, const std::string& text) const
{
    const Setting* setting = find(id);
    const std::string problem = setting == nullptr ? "no such setting" : problem_with(*setting, text);
    if (!problem.empty()) {
        throw BadInput("setting " + to_string(id) + ": " + problem);
    }
}

Settings::Values Settings::replace(const Values& values)
{
    Values changed;
    const std::lock_guard<std::mutex> lock(mutex_);
    for (const auto& [id, text] : values) {
        std::string& present = values_[id];
        if (present != text) {
            changed[id] = present = text;
        }
    }
    return changed;
}

void Settings::tell(const Values& changed) const
{
    for (const auto& [id, text] : changed) {
        changes_.tell(id, text);
    }
}

void Settings::set(const SettingId& id, const std::string& text)
{
    check(id, text);
    store_.write(id, text);
    this_run_.erase(id);
    take_over({{id, text}});
}

void Settings::set_all(const Values& values)
{
    for (const auto& [id, text] : values) {
        check(id, text);
    }
    store_.write_all(values);
    for (const auto& [id, text] : values) {
        this_run_.erase(id);
    }
    take_over(values);
}

void Settings::restore_defaults(const std::function<bool(const SettingId& id)>& chosen)
{
    std::vector<SettingId> ids;
    Values defaults;
    for (const auto& [id, setting] : definitions_) {
        if (chosen(id)) {
            ids.push_back(id);
            defaults[id] = setting.default_text;
        }
    }
    store_.remove(ids);
    for (const SettingId& id : ids) {
        this_run_.erase(id);
    }
    take_over(defaults);
}

void Settings::set_for_this_run(const SettingId& id, const std::string& text)
{
    this_run_[id] = text;
    take_over({{id, text}});
}

void Settings::take_over(const Values& values) { tell(replace(values)); }

Settings::Values Settings::follow_definitions()
{
    Values values = stored_values();
    put_what_fits(this_run_, "present", values);
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        for (auto value = values_.begin(); value != values_.end();) {
            value = find(value->first) == nullptr ? values_.erase(value) : std::next(value);
        }
    }
    return replace(values);
}

} // namespace sim
