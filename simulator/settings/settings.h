// The camera's settings: definitions and present values together.
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "simulator/base/data.h"
#include "simulator/base/listeners.h"
#include "simulator/settings/settings_store.h"

namespace sim {

/// There is no setting of this name, or no single one.
class UnknownSetting : public BadInput {
public:
    using BadInput::BadInput;
};

/// "PARENT.KEY", or "KEY" of a setting without parent: how people name a setting.
std::string name_of(const SettingId& id);

/// Present values, kept in memory and written through to the database. Values may be read on any thread while the
/// definitions stay; all else is for the one thread of the menu.
class Settings {
public:
    using Values = std::map<SettingId, std::string>;
    /// Told of each value that is another one than before, on the thread that changed it, with no lock held.
    using Changes = Listeners<SettingId, std::string>;

    /// Stored values that no longer fit their definition are reported and their defaults taken; the database keeps
    /// them.
    Settings(const std::map<SettingId, Setting>& definitions, SettingsStore& store);

    /// The definition of a setting; null when there is none.
    const Setting* find(const SettingId& id) const;
    /// The first setting with this key, whatever its parent; null when there is none.
    const Setting* find_key(const std::string& key) const;
    /// The setting of a name as name_of() gives it, or of a key that only one setting has. Throws UnknownSetting; where
    /// several settings have the key its words list their names.
    const Setting& by_name(const std::string& name) const;
    const std::map<SettingId, Setting>& definitions() const { return definitions_; }

    [[nodiscard]] Subscription listen(Changes::Function listener) { return changes_.listen(std::move(listener)); }

    /// The present value of a setting that exists.
    std::string value(const SettingId& id) const;
    /// The same as a number; the setting is of kind Integer or Color.
    std::int32_t number(const SettingId& id) const;

    /// Checks and stores a value. Throws BadInput in words for an unknown setting or a value that doesn't fit.
    void set(const SettingId& id, const std::string& text);
    /// Checks and stores some values, all of them or none. Throws as set() does, and std::runtime_error when the database
    /// refuses.
    void set_all(const Values& values);
    /// Sets all settings of which the function says true back to their defaults, all of them or none. Throws
    /// std::runtime_error when the database refuses.
    void restore_defaults(const std::function<bool(const SettingId& id)>& chosen);
    /// Gives a setting that exists a value for this run only: the database keeps its own, until set() is called.
    void set_for_this_run(const SettingId& id, const std::string& text);
    /// Follows definitions that have changed: each setting has its stored value, or, where that no longer fits and is
    /// reported, its default. The database keeps what it has.
    /// Nobody is told yet: the values that changed are returned for tell().
    [[nodiscard]] Values follow_definitions();
    /// Tells the listeners of values that changed.
    void tell(const Values& changed) const;

private:
    void check(const SettingId& id, const std::string& text) const;
    /// The stored values that fit, and the defaults of all others.
    Values stored_values() const;
    /// Puts the values in the place of the present ones; those that differed are returned.
    Values replace(const Values& values);
    void take_over(const Values& values);
    /// Reports the values among these that their settings can't have, and passes over them.
    void put_what_fits(const Values& from, const char* whose, Values& into) const;

    const std::map<SettingId, Setting>& definitions_;
    SettingsStore& store_;
    mutable std::mutex mutex_; ///< guards values_
    Values values_;
    Values this_run_; ///< what the database doesn't have
    Changes changes_;
};

} // namespace sim
