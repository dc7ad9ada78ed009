#include "simulator/settings/settings_store.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <SQLiteCpp/VariadicBind.h>
#include <sqlite3.h>

namespace sim {
namespace {

// Mark the file as ours: the number in its header, and the form of its one table.
constexpr int application_id = 0x43414D53;
constexpr int table_version = 1;
constexpr const char* table_sql = "CREATE TABLE setting (parent TEXT NOT NULL, key TEXT NOT NULL, value TEXT NOT NULL,"
                                  " PRIMARY KEY (parent, key)) STRICT, WITHOUT ROWID";
constexpr int busy_wait_ms = 500;

const char* const what_to_do = "; 'camera-sim --reset' moves it aside to a .bak file and starts with default settings";

} // namespace

template <typename Body>
auto SettingsStore::call(const Body& body) const
{
    try {
        return body();
    } catch (const SQLite::Exception& error) {
        fail(error);
    }
}

SettingsStore::SettingsStore(const std::filesystem::path& file) : name_("settings database " + file.string())
{
    call([&] {
        database_ = std::make_unique<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                                                       busy_wait_ms);
        const bool fresh = is_fresh();
        if (!fresh) {
            check_health();
        }
        if (sqlite3_db_readonly(database_->getHandle(), "main") != 0) {
            throw BadInput(name_ + ": can't be written");
        }
        use_write_ahead_log();
        database_->exec("PRAGMA synchronous=FULL");
        if (fresh) {
            make_tables();
        }
    });
}

SettingsStore::~SettingsStore() = default;
SettingsStore::SettingsStore(SettingsStore&& other) noexcept = default;

std::map<SettingId, std::string> SettingsStore::load_all() const
{
    return call([&] {
        SQLite::Statement row(*database_, "SELECT parent, key, value FROM setting");
        std::map<SettingId, std::string> values;
        while (row.executeStep()) {
            values[{row.getColumn(0).getString(), row.getColumn(1).getString()}] = row.getColumn(2).getString();
        }
        return values;
    });
}

void SettingsStore::write(const SettingId& id, const std::string& value) { write_all({{id, value}}); }

void SettingsStore::clear()
{
    call([&] { database_->exec("DELETE FROM setting"); });
}

void SettingsStore::write_all(const std::map<SettingId, std::string>& values)
{
    run_together("INSERT OR REPLACE INTO setting VALUES (?, ?, ?)", values,
                 [](SQLite::Statement& row, const auto& entry) {
                     SQLite::bind(row, entry.first.parent, entry.first.key, entry.second);
                 });
}

void SettingsStore::remove(const std::vector<SettingId>& ids)
{
    run_together("DELETE FROM setting WHERE parent = ? AND key = ?", ids,
                 [](SQLite::Statement& row, const SettingId& id) { SQLite::bind(row, id.parent, id.key); });
}

template <typename List, typename Bind>
void SettingsStore::run_together(const char* sql, const List& list, const Bind& bind)
{
    call([&] {
        SQLite::Transaction transaction(*database_, SQLite::TransactionBehavior::IMMEDIATE);
        SQLite::Statement row(*database_, sql);
        for (const auto& entry : list) {
            bind(row, entry);
            row.exec();
            row.reset();
        }
        transaction.commit();
    });
}

std::string SettingsStore::read_text(const std::string& sql) const { return database_->execAndGet(sql).getString(); }

/// Whether the database is empty. One that is neither empty nor ours must not get a table of ours.
bool SettingsStore::is_fresh()
{
    const std::string owner = read_text("PRAGMA application_id");
    const bool fresh = owner == "0" && read_text("SELECT count(*) FROM sqlite_master") == "0";
    const bool ours =
        owner == std::to_string(application_id) && read_text("PRAGMA user_version") == std::to_string(table_version);
    if (!fresh && !ours) {
        throw BadDatabase(name_ + ": belongs to another program or another version" + what_to_do);
    }
    return fresh;
}

/// The database answers with the mode that it has afterwards, which is the old one where the log can't be.
void SettingsStore::use_write_ahead_log()
{
    const std::string mode = read_text("PRAGMA journal_mode=WAL");
    if (mode != "wal") {
        throw BadInput(name_ + ": its folder allows no write-ahead log (journal mode '" + mode +
                       "'); choose another folder with --data DIR");
    }
}

void SettingsStore::check_health()
{
    if (read_text("SELECT count(*) FROM pragma_quick_check WHERE quick_check <> 'ok'") != "0") {
        throw BadDatabase(name_ + ": is damaged" + what_to_do);
    }
    if (read_text("SELECT count(*) FROM sqlite_master WHERE sql = '" + std::string(table_sql) + "'") != "1") {
        throw BadDatabase(name_ + ": its table has an unknown form" + what_to_do);
    }
}

void SettingsStore::make_tables()
{
    database_->exec("BEGIN IMMEDIATE;" + std::string(table_sql) +
                    ";PRAGMA application_id = " + std::to_string(application_id) +
                    ";PRAGMA user_version = " + std::to_string(table_version) + ";COMMIT");
}

void SettingsStore::fail(const SQLite::Exception& error) const
{
    const std::string words = name_ + ": " + error.what();
    switch (error.getErrorCode() & 0xFF) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        throw BadDatabase(words + what_to_do);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw BadInput(words + "; another program holds it, close that one first");
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
        throw BadInput(words);
    default:
        throw std::runtime_error(words);
    }
}

std::filesystem::path move_database_aside(const std::filesystem::path& file)
{
    std::filesystem::path target = file.string() + ".bak";
    for (int number = 2; std::filesystem::exists(target); ++number) {
        target = file.string() + ".bak" + std::to_string(number);
    }
    for (const char* part : {"-wal", "-shm", ""}) { // the log first: it must never meet a new database
        if (std::filesystem::exists(file.string() + part)) {
            std::filesystem::rename(file.string() + part, target.string() + part);
        }
    }
    return target;
}

} // namespace sim
