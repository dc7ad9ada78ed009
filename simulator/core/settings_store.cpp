#include "simulator/core/settings_store.h"

#include <sqlite3.h>

namespace sim {
namespace {

// Mark the file as ours: the number in its header, and the form of its one table.
constexpr int application_id = 0x43414D53;
constexpr int table_version = 1;
constexpr int busy_wait_ms = 500;

struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

std::string column_text(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text == nullptr ? "" : text;
}

void bind_text(sqlite3_stmt* statement, int place, const std::string& text)
{
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

const char* const what_to_do = "; 'camera-sim --reset' moves it aside to a .bak file and starts with default settings";

} // namespace

void SettingsStore::Close::operator()(sqlite3* database) const { sqlite3_close(database); }

SettingsStore::SettingsStore(const std::filesystem::path& file) : name_("settings database " + file.string())
{
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(file.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    database_.reset(raw);
    if (code != SQLITE_OK) {
        fail(code);
    }
    sqlite3_busy_timeout(raw, busy_wait_ms);
    check_owner();
    if (sqlite3_db_readonly(raw, "main") != 0) {
        throw BadInput(name_ + ": can't be written");
    }
    run("PRAGMA journal_mode=WAL");
    run("PRAGMA synchronous=FULL");
    make_tables();
    check_health();
}

std::map<SettingId, std::string> SettingsStore::load_all()
{
    sqlite3_stmt* raw = nullptr;
    const int code = sqlite3_prepare_v2(database_.get(), "SELECT parent, key, value FROM setting", -1, &raw, nullptr);
    const Statement statement(raw);
    if (code != SQLITE_OK) {
        fail(code);
    }
    std::map<SettingId, std::string> values;
    int step = sqlite3_step(raw);
    for (; step == SQLITE_ROW; step = sqlite3_step(raw)) {
        values[{column_text(raw, 0), column_text(raw, 1)}] = column_text(raw, 2);
    }
    if (step != SQLITE_DONE) {
        fail(step);
    }
    return values;
}

void SettingsStore::write(const SettingId& id, const std::string& value)
{
    sqlite3_stmt* raw = nullptr;
    const int code =
        sqlite3_prepare_v2(database_.get(), "INSERT OR REPLACE INTO setting VALUES (?, ?, ?)", -1, &raw, nullptr);
    const Statement statement(raw);
    if (code != SQLITE_OK) {
        fail(code);
    }
    bind_text(raw, 1, id.parent);
    bind_text(raw, 2, id.key);
    bind_text(raw, 3, value);
    const int step = sqlite3_step(raw);
    if (step != SQLITE_DONE) {
        fail(step);
    }
}

void SettingsStore::clear() { run("DELETE FROM setting"); }

void SettingsStore::run(const char* sql)
{
    const int code = sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        fail(code);
    }
}

int SettingsStore::read_number(const char* sql)
{
    sqlite3_stmt* raw = nullptr;
    int code = sqlite3_prepare_v2(database_.get(), sql, -1, &raw, nullptr);
    const Statement statement(raw);
    if (code == SQLITE_OK) {
        code = sqlite3_step(raw);
    }
    if (code != SQLITE_ROW) {
        fail(code);
    }
    return sqlite3_column_int(raw, 0);
}

/// A database of another program must not get a table of ours.
void SettingsStore::check_owner()
{
    const int owner = read_number("PRAGMA application_id");
    const bool fresh = owner == 0 && read_number("SELECT count(*) FROM sqlite_master") == 0;
    const bool ours = owner == application_id && read_number("PRAGMA user_version") == table_version;
    if (!fresh && !ours) {
        throw BadDatabase(name_ + ": belongs to another program or another version" + what_to_do);
    }
}

void SettingsStore::check_health()
{
    if (read_number("SELECT count(*) FROM pragma_quick_check WHERE quick_check <> 'ok'") != 0) {
        throw BadDatabase(name_ + ": is damaged" + what_to_do);
    }
}

void SettingsStore::make_tables()
{
    if (read_number("SELECT count(*) FROM sqlite_master WHERE name = 'setting'") != 0) {
        return;
    }
    const std::string sql = "BEGIN IMMEDIATE;"
                            "CREATE TABLE setting (parent TEXT NOT NULL, key TEXT NOT NULL, value TEXT NOT NULL,"
                            " PRIMARY KEY (parent, key)) STRICT, WITHOUT ROWID;"
                            "PRAGMA application_id = " +
                            std::to_string(application_id) +
                            ";"
                            "PRAGMA user_version = " +
                            std::to_string(table_version) +
                            ";"
                            "COMMIT";
    run(sql.c_str());
}

void SettingsStore::fail(int code) const
{
    const std::string words = name_ + ": " + sqlite3_errstr(code);
    switch (code & 0xFF) {
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
