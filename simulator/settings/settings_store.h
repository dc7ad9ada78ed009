// The database of setting values, one SQLite file.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "simulator/base/data.h"

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

namespace sim {

/// The file isn't a settings database, or it is damaged.
class BadDatabase : public BadInput {
public:
    using BadInput::BadInput;
};

/// Values that were ever set since the last clear(), by setting; a setting at its default is among them when somebody
/// set it to that. What write() has stored survives a kill at any moment: write-ahead log, synchronised to the disk
/// with each commit.
class SettingsStore {
public:
    /// Opens the file, or makes it. Throws BadDatabase for a file that is no healthy settings database, which stays as
    /// it is, and BadInput when it is locked, can't be written, or lies where no write-ahead log can be.
    explicit SettingsStore(const std::filesystem::path& file);

    ~SettingsStore();
    SettingsStore(SettingsStore&& other) noexcept;

    std::map<SettingId, std::string> load_all() const;
    /// These four throw std::runtime_error when the database refuses; nothing has changed then.
    void write(const SettingId& id, const std::string& value);
    void clear();
    /// Stores some values, all of them or none.
    void write_all(const std::map<SettingId, std::string>& values);
    /// Forgets some values, all of them or none.
    void remove(const std::vector<SettingId>& ids);

private:
    /// Calls the database; what it refuses is told in words that help.
    template <typename Body>
    auto call(const Body& body) const;
    /// Runs a statement for each entry of a list, all of them or none.
    template <typename List, typename Bind>
    void run_together(const char* sql, const List& list, const Bind& bind);
    /// The first column of the first row.
    std::string read_text(const std::string& sql) const;
    bool is_fresh();
    void use_write_ahead_log();
    void check_health();
    void make_tables();
    [[noreturn]] void fail(const SQLite::Exception& error) const;

    std::string name_;
    std::unique_ptr<SQLite::Database> database_;
};

/// Renames a database with its write-ahead log to the first free name with ".bak" behind it. Returns the new name.
std::filesystem::path move_database_aside(const std::filesystem::path& file);

} // namespace sim
