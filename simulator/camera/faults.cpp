#include "simulator/camera/faults.h"

#include <algorithm>

#include "simulator/base/data.h"

namespace sim {
namespace {

thread_local int pauses = 0;

} // namespace

const std::array<FaultRow, fault_count>& all_faults()
{
    static constexpr std::array<FaultRow, fault_count> rows = {{
        {Fault::SettingsSlow, "settings-slow", "each call of the settings takes 150 ms"},
        {Fault::SettingsRefusing, "settings-refusing", "the settings answer no value"},
        {Fault::SettingsOutOfRange, "settings-out-of-range",
         "numbers lie outside their range, options are in no list, and lists have no end"},
        {Fault::LanguageRefusing, "language-refusing", "neither the language nor a text can be had"},
        {Fault::MemoryExhausted, "memory-exhausted", "there is no media memory for new blocks"},
        {Fault::FontsMissing, "fonts-missing", "fonts can't be opened"},
        {Fault::PicturesMissing, "pictures-missing", "pictures can't be loaded"},
    }};
    return rows;
}

std::vector<std::string> fault_names()
{
    std::vector<std::string> names;
    for (const FaultRow& row : all_faults()) {
        names.emplace_back(row.name);
    }
    return names;
}

std::set<Fault> parse_faults(const std::vector<std::string>& names)
{
    std::set<Fault> faults;
    for (const std::string& name : names) {
        const auto& rows = all_faults();
        const auto row =
            std::find_if(rows.begin(), rows.end(), [&name](const FaultRow& one) { return name == one.name; });
        if (row == rows.end()) {
            throw BadInput("unknown fault '" + name + "', expected " + one_of(name, fault_names()));
        }
        faults.insert(row->fault);
    }
    return faults;
}

FaultPause::FaultPause() { ++pauses; }

FaultPause::~FaultPause() { --pauses; }

bool Faults::is_on(Fault fault) const { return pauses == 0 && is_set(fault); }

void Faults::set(const std::set<Fault>& on)
{
    for (const FaultRow& row : all_faults()) {
        on_[static_cast<std::size_t>(row.fault)].store(on.count(row.fault) > 0, std::memory_order_relaxed);
    }
}

std::vector<std::string> Faults::names() const
{
    std::vector<std::string> names;
    for (const FaultRow& row : all_faults()) {
        if (is_set(row.fault)) {
            names.emplace_back(row.name);
        }
    }
    return names;
}

} // namespace sim
