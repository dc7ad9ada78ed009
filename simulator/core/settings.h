// The camera's settings: definitions and present values together.
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <string>

#include "simulator/core/definitions.h"
#include "simulator/core/settings_store.h"

namespace sim {

/// Present values, kept in memory and written through to the database. Safe to use from several threads.
class Settings {
public:
    /// Stored values that no longer fit their definition are reported and their defaults taken; the database keeps
    /// them.
    Settings(const std::map<SettingId, Setting>& definitions, SettingsStore& store);

    /// The definition of a setting; null when there is none.
    const Setting* find(const SettingId& id) const;
    /// The first setting with this key, whatever its parent; null when there is none.
    const Setting* find_key(const std::string& key) const;

    /// The present value of a setting that exists.
    std::string value(const SettingId& id) const;
    /// The same as a number; the setting is of kind Integer or Color.
    std::int32_t number(const SettingId& id) const;

    /// Checks and stores a value. Throws BadInput in words for an unknown setting or a value that doesn't fit.
    void set(const SettingId& id, const std::string& text);
    /// Sets all settings of which the function says true back to their defaults, all of them or none. Throws
    /// std::runtime_error when the database refuses.
    void restore_defaults(const std::function<bool(const SettingId& id)>& chosen);
    /// Gives a setting that exists a value for this run only: the database keeps its own, until set() is called.
    void set_for_this_run(const SettingId& id, const std::string& text);

private:
    const std::map<SettingId, Setting>& definitions_;
    SettingsStore& store_;
    mutable std::mutex mutex_; ///< guards values_ and the store
    std::map<SettingId, std::string> values_;
};

} // namespace sim
