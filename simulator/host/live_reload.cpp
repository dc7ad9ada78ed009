#include "simulator/host/live_reload.h"

#include <algorithm>

#include "osd_menu.h"
#include "simulator/base/data.h"
#include "simulator/base/log.h"
#include "simulator/base/resources.h"
#include "simulator/host/page_stack.h"

namespace sim {

LiveReload::LiveReload(Camera& camera, Pictures& pictures)
    : camera_(camera), pictures_(pictures), files_(read_files(camera.resources))
{
    pictures_.take_outdated();
}

void LiveReload::take(const Verdict& verdict)
{
    const Names changed = verdict.resources == nullptr ? Names() : differences(files_, verdict.resources->files);
    const Effect effect = verdict.resources == nullptr ? Effect::None : take_all(verdict, changed);
    for (const std::string& file : changed) {
        log_line(LogLevel::Info, "resources", file + " was read again");
    }
    problems_.set(verdict.findings);
    if (effect == Effect::Reopen) {
        reopen_pages();
    } else if (effect == Effect::Redraw && OSD_MENU_GetMenuStatus() == 1) {
        OSD_MENU_RenderCanvas();
    }
}

LiveReload::Effect LiveReload::take_all(const Verdict& verdict, const Names& changed)
{
    files_ = verdict.resources->files;
    definitions_wait_ = definitions_wait_ || changed.count("settings.json") > 0;
    const bool other_texts = take_texts(verdict);
    const bool other_definitions = take_definitions(verdict.resources->folder);
    const bool other_pages = take_pages(verdict, changed);
    const bool other_pictures = take_pictures(changed);
    if (other_texts || other_definitions || other_pages) {
        return Effect::Reopen;
    }
    return other_pictures ? Effect::Redraw : Effect::None;
}

/// A page that keeps its last good state keeps the texts that it needs for it.
bool LiveReload::take_texts(const Verdict& verdict)
{
    bool spoken = false;
    for (const auto& [language, texts] : verdict.resources->folder.languages) {
        pages::Texts all = texts;
        if (!verdict.refused.empty() && camera_.texts.has(language)) {
            const pages::Texts& present = camera_.texts.of(language);
            all.insert(present.begin(), present.end());
        }
        const bool other = camera_.texts.replace(language, std::move(all));
        spoken = spoken || (other && language == camera_.language());
    }
    return spoken;
}

/// New definitions can wait for the texts of a new language.
bool LiveReload::take_definitions(const pages::ResourceFolder& folder)
{
    const auto is_in_them = [](const BadInput& mistake) { return mistake.place().file == "settings.json"; };
    const auto has_texts = [this](const auto& language) { return camera_.texts.has(language.second); };
    const auto& languages = folder.definitions.languages;
    if (!definitions_wait_ || std::any_of(folder.mistakes.begin(), folder.mistakes.end(), is_in_them) ||
        !std::all_of(languages.begin(), languages.end(), has_texts)) {
        return false;
    }
    camera_.replace_definitions(folder.definitions);
    definitions_wait_ = false;
    return true;
}

bool LiveReload::take_pages(const Verdict& verdict, const Names& changed)
{
    const std::vector<std::string> open = open_page_names();
    bool shown = false;
    for (const auto& [name, page] : verdict.resources->folder.pages) {
        if (page.root == nullptr || verdict.refused.count(name) > 0) {
            continue;
        }
        const bool was_kept = camera_.pages.is_kept(name); // else it has been read from its file
        const bool other = camera_.pages.keep(name, page.text) && (was_kept || changed.count(page.file) > 0);
        shown = shown || (other && std::count(open.begin(), open.end(), name) > 0);
    }
    return shown;
}

bool LiveReload::take_pictures(const Names& changed)
{
    const std::filesystem::path root = plain_path(camera_.resources);
    bool other = false;
    for (const std::string& file : changed) {
        other = pictures_.take(root / file) || other;
    }
    return other;
}

} // namespace sim
