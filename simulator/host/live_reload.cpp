#include "simulator/host/live_reload.h"

#include <algorithm>
#include <sstream>
#include <system_error>
#include <utility>

#include "osd_menu.h"
#include "simulator/core/data.h"
#include "simulator/core/log.h"
#include "simulator/core/page_files.h"
#include "simulator/core/resources.h"
#include "simulator/host/page_check.h"
#include "simulator/host/page_stack.h"

namespace sim {
namespace {

namespace fs = std::filesystem;

void say_read(const std::string& file) { log_line(LogLevel::Info, "resources", file + " was read again"); }

} // namespace

LiveReload::LiveReload(Camera& camera, Pictures& pictures)
    : camera_(camera), pictures_(pictures), root_(plain_path(camera.resources())), pages_(page_folder(root_)),
      languages_(root_ / "lang")
{
    check_pages();
    for (const fs::path& file : pictures_.outdated()) {
        (void)take_picture(file);
    }
}

void LiveReload::reload(const std::set<fs::path>& changed)
{
    Effect most = Effect::None;
    for (const fs::path& file : files_of(changed)) {
        most = std::max(most, take(file));
    }
    if (most == Effect::Reopen) {
        reopen_pages();
    } else if (most == Effect::Redraw && OSD_MENU_GetMenuStatus() == 1) {
        OSD_MENU_RenderCanvas();
    }
}

std::set<fs::path> LiveReload::files_of(const std::set<fs::path>& changed) const
{
    std::set<fs::path> files;
    const std::vector<fs::path> known = resource_folders(root_);
    for (const fs::path& path : changed) {
        if (std::count(known.begin(), known.end(), path) > 0) {
            add_files(path, files);
        } else {
            files.insert(path);
        }
    }
    return files;
}

/// The files that are in a folder, and those that were.
void LiveReload::add_files(const fs::path& folder, std::set<fs::path>& files) const
{
    std::error_code error; // a folder that has gone has no files
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        files.insert(entry.path());
    }
    if (folder == pages_) {
        for (const auto& [name, text] : camera_.kept_pages()) {
            files.insert(page_file(pages_, name));
        }
    }
    for (const auto& [option, language] : camera_.definitions().languages) {
        if (folder == languages_) {
            files.insert(languages_ / (language + ".json"));
        }
    }
    for (const Problem& problem : problems_.list()) {
        if ((root_ / problem.file).parent_path() == folder) {
            files.insert(root_ / problem.file);
        }
    }
}

LiveReload::Effect LiveReload::take(const fs::path& file)
{
    const fs::path folder = file.parent_path();
    if (file == root_ / "settings.json") {
        return take_definitions(file);
    }
    if (folder == languages_ && file.extension() == ".json") {
        return take_language(file);
    }
    if (folder == pages_ && is_page_file(file)) {
        return take_page(file);
    }
    return pictures_.has_name_of_one(file) ? take_picture(file) : Effect::None;
}

/// Runs the body, which throws when the file is broken, and keeps the list of problems.
template <typename Body>
bool LiveReload::in_order(const fs::path& file, Body body)
{
    try {
        body();
        problems_.clear(name_of_file(file));
        return true;
    } catch (const std::exception& error) {
        problems_.set(problem_in(file, name_of_file(file), error.what()));
        return false;
    }
}

std::string LiveReload::name_of_file(const fs::path& file) const { return file.lexically_relative(root_).string(); }

LiveReload::Effect LiveReload::take_definitions(const fs::path& file)
{
    if (!in_order(file, [&] { camera_.replace_definitions(load_definitions(file)); })) {
        return Effect::None;
    }
    say_read(name_of_file(file));
    return Effect::Reopen;
}

LiveReload::Effect LiveReload::take_language(const fs::path& file)
{
    bool spoken = false;
    const bool good = in_order(file, [&] {
        refuse_lost_texts(file);
        spoken = camera_.reload_language(file.stem().string());
    });
    if (good && !spoken && problems_.has("settings.json")) {
        return take_definitions(root_ / "settings.json"); // new ones may have waited for their new language
    }
    if (!good || !spoken) {
        return Effect::None;
    }
    say_read(name_of_file(file));
    check_pages();
    return Effect::Reopen;
}

LiveReload::Effect LiveReload::take_page(const fs::path& file)
{
    const std::string name = page_name(file);
    std::string text;
    std::error_code error;
    if (camera_.kept_pages().count(name) == 0 && !fs::exists(file, error)) {
        problems_.clear(name_of_file(file)); // nobody has seen the page
        return Effect::None;
    }
    if (!in_order(file, [&] { text = read_text_file(file); })) {
        return Effect::None;
    }
    if (const auto mistake = find_page_mistake(camera_, name, text)) {
        problems_.set({name_of_file(file), mistake->line, mistake->reason});
        return Effect::None;
    }
    problems_.clear(name_of_file(file));
    if (!camera_.keep_page(name, text)) {
        return Effect::None;
    }
    const std::vector<std::string> open = open_page_names();
    return std::count(open.begin(), open.end(), name) > 0 ? Effect::Reopen : Effect::None;
}

/// A page that was good must not lose rows to a translation.
void LiveReload::refuse_lost_texts(const fs::path& file) const
{
    const nlohmann::json texts = load_json_object(file);
    for (const auto& [name, page] : camera_.kept_pages()) {
        std::istringstream words(page);
        for (std::string word; std::getline(words, word, '"');) {
            if (camera_.find_text(file.stem().string(), word) != nullptr && !texts.contains(word)) {
                throw BadInput(file.string() + ": the text '" + word + "' is missing, page '" + name + "' needs it");
            }
        }
    }
}

void LiveReload::check_pages()
{
    std::set<fs::path> files;
    add_files(pages_, files);
    for (const fs::path& file : files) {
        (void)take(file); // whoever calls opens all pages again
    }
}

LiveReload::Effect LiveReload::take_picture(const fs::path& file)
{
    return in_order(file, [&] { pictures_.take(file); }) ? Effect::Redraw : Effect::None;
}

} // namespace sim
