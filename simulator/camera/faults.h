// Faults of the services around the menu, for trying what the menu makes of them.
#pragma once

#include <array>
#include <atomic>
#include <set>
#include <string>
#include <vector>

namespace sim {

enum class Fault {
    SettingsSlow,
    SettingsRefusing,
    SettingsOutOfRange,
    LanguageRefusing,
    MemoryExhausted,
    FontsMissing,
    PicturesMissing
};
constexpr std::size_t fault_count = 7;

struct FaultRow {
    Fault fault;
    const char* name;
    const char* help;
};

/// All faults, in the order of the enumeration.
const std::array<FaultRow, fault_count>& all_faults();

std::vector<std::string> fault_names();

/// The faults of these names. Throws BadInput for an unknown one, which lists the known ones.
std::set<Fault> parse_faults(const std::vector<std::string>& names);

/// While one lives, no fault is on for its thread: what isn't done for the menu gets honest answers.
class FaultPause {
public:
    FaultPause();
    ~FaultPause();
    FaultPause(const FaultPause&) = delete;
    FaultPause& operator=(const FaultPause&) = delete;
};

/// Which faults are on at present. Safe to use from several threads.
class Faults {
public:
    /// Exactly these are on from now on.
    void set(const std::set<Fault>& on);
    /// Whether it is on for the calling thread.
    bool is_on(Fault fault) const;
    /// The names of those that are on.
    std::vector<std::string> names() const;

private:
    bool is_set(Fault fault) const { return on_[static_cast<std::size_t>(fault)].load(std::memory_order_relaxed); }

    std::array<std::atomic<bool>, fault_count> on_{};
};

} // namespace sim
