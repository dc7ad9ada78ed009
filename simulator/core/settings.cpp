#include "simulator/core/settings.h"

#include <algorithm>

#include "simulator/core/errors.h"
#include "simulator/core/log.h"

namespace sim {

Settings::Settings(const std::map<SettingId, Setting>& definitions, SettingsStore& store)
    : definitions_(definitions), store_(store)
{
    for (const auto& [id, setting] : definitions_) {
        values_[id] = setting.default_text;
    }
    for (const auto& [id, text] : store_.load_all()) {
        const Setting* setting = find(id);
        const std::string problem = setting == nullptr ? "no such setting" : problem_with(*setting, text);
        if (problem.empty()) {
            values_[id] = text;
        } else {
            log_line(LogLevel::Warning, "settings", "stored value of " + to_string(id) + " not used: " + problem);
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

std::string Settings::value(const SettingId& id) const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return values_.at(id);
}

std::int32_t Settings::number(const SettingId& id) const { return number_of(definitions_.at(id), value(id)); }

void Settings::set(const SettingId& id, const std::string& text)
{
    const Setting* setting = find(id);
    const std::string problem = setting == nullptr ? "no such setting" : problem_with(*setting, text);
    if (!problem.empty()) {
        throw BadInput("setting " + to_string(id) + ": " + problem);
    }
    const std::lock_guard<std::mutex> lock(mutex_);
    store_.write(id, text);
    values_[id] = text;
}

void Settings::restore_defaults(const std::function<bool(const SettingId& id)>& chosen)
{
    std::vector<SettingId> ids;
    for (const auto& [id, setting] : definitions_) {
        if (chosen(id)) {
            ids.push_back(id);
        }
    }
    const std::lock_guard<std::mutex> lock(mutex_);
    store_.remove(ids);
    for (const SettingId& id : ids) {
        values_[id] = definitions_.at(id).default_text;
    }
}

void Settings::set_for_this_run(const SettingId& id, const std::string& text)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    values_.at(id) = text;
}

} // namespace sim
