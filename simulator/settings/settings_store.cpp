#include "simulator/settings/settings_store.h"

#include <sqlite3.h>

namespace sim {
namespace {

// Mark the file as ours: the number in its header, and the form of its one table.
constexpr int application_id = 0x43414D53;
constexpr int table_version = 1;
constexpr const char* table_sql = "CREATE TABLE setting (parent TEXT NOT NULL, key TEXT NOT NULL, value TEXT NOT NULL,"
                                  " PRIMARY KEY (parent, key)) STRICT, WITHOUT ROWID";
constexpr int busy_wait_ms = 500;

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

void SettingsStore::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SettingsStore::SettingsStore(const std::filesystem::path& file) : name_("settings database " + file.string())
{
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(file.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    database_.reset(raw);
    if (code != SQLITE_OK) {
        fail(code);
    }
    sqlite3_busy_timeout(raw, busy_wait_ms);
    const bool fresh = is_fresh();
    if (!fresh) {
        check_health();
    }
    if (sqlite3_db_readonly(raw, "main") != 0) {
        throw BadInput(name_ + ": can't be written");
    }
    use_write_ahead_log();
    run("PRAGMA synchronous=FULL");
    if (fresh) {
        make_tables();
    }
}

std::map<SettingId, std::string> SettingsStore::load_all()
{
    const Statement statement = prepare("SELECT parent, key, value FROM setting");
    std::map<SettingId, std::string> values;
    int step = sqlite3_step(statement.get());
    for (; step == SQLITE_ROW; step = sqlite3_step(statement.get())) {
        values[{column_text(statement.get(), 0), column_text(statement.get(), 1)}] = column_text(statement.get(), 2);
    }
    if (step != SQLITE_DONE) {
        fail(step);
    }
    return values;
}

void SettingsStore::write(const SettingId& id, const std::string& value)
{
    const Statement statement = prepare("INSERT OR REPLACE INTO setting VALUES (?, ?, ?)");
    bind_text(statement.get(), 1, id.parent);
    bind_text(statement.get(), 2, id.key);
    bind_text(statement.get(), 3, value);
    const int step = sqlite3_step(statement.get());
    if (step != SQLITE_DONE) {
        fail(step);
    }
}

void SettingsStore::clear() { run("DELETE FROM setting"); }

void SettingsStore::remove(const std::vector<SettingId>& ids)
{
    run_together([&] {
        for (const SettingId& id : ids) {
            const Statement statement = prepare("DELETE FROM setting WHERE parent = ? AND key = ?");
            bind_text(statement.get(), 1, id.parent);
            bind_text(statement.get(), 2, id.key);
            const int step = sqlite3_step(statement.get());
            if (step != SQLITE_DONE) {
                fail(step);
            }
        }
    });
}

void SettingsStore::write_all(const std::map<SettingId, std::string>& values)
{
    run_together([&] {
        for (const auto& [id, value] : values) {
            write(id, value);
        }
    });
}

void SettingsStore::run_together(const std::function<void()>& body)
{
    run("BEGIN IMMEDIATE");
    try {
        body();
        run("COMMIT");
    } catch (...) {
        (void)sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr); // the first failure counts
        throw;
    }
}

void SettingsStore::run(const std::string& sql)
{
    const int code = sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        fail(code);
    }
}

SettingsStore::Statement SettingsStore::prepare(const std::string& sql)
{
    sqlite3_stmt* raw = nullptr;
    const int code = sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &raw, nullptr);
    Statement statement(raw);
    if (code != SQLITE_OK) {
        fail(code);
    }
    return statement;
}

std::string SettingsStore::read_text(const std::string& sql)
{
    const Statement statement = prepare(sql);
    const int step = sqlite3_step(statement.get());
    if (step != SQLITE_ROW) {
        fail(step);
    }
    return column_text(statement.get(), 0);
}

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
    run("BEGIN IMMEDIATE;" + std::string(table_sql) + ";PRAGMA application_id = " + std::to_string(application_id) +
        ";PRAGMA user_version = " + std::to_string(table_version) + ";COMMIT");
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
