// Changed files of the resources become what the menu shows.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "simulator/core/camera.h"
#include "simulator/core/problems.h"
#include "simulator/host/pictures.h"

namespace sim {

/// Keeps the menu on the last good state of each file: pages, translations, settings definitions and pictures. A broken
/// file is a problem in a list and changes nothing else. All calls are made on the menu's thread; the menu may be
/// closed, or not have started at all.
class LiveReload {
public:
    /// Looks at the camera's resources as they are now: each page that is in order is the one the menu reads from now on,
    /// each other one a problem, and the pictures are those of the resources.
    LiveReload(Camera& camera, Pictures& pictures);

    /// Takes over what has changed: files in the resource_folders(), or a folder of them for all that is in it. What is on
    /// screen follows at once, see reopen_pages(). A picture takes as long as drawing it does.
    void reload(const std::set<std::filesystem::path>& changed);

    /// Takes over what a check of the resources has found.
    void set_findings(std::vector<Problem> findings) { problems_.set_findings(std::move(findings)); }

    /// What is wrong at present.
    std::vector<Problem> problems() const { return problems_.list(); }

private:
    using Path = std::filesystem::path;
    enum class Effect { None, Redraw, Reopen };

    std::set<Path> files_of(const std::set<Path>& changed) const;
    void add_files(const Path& folder, std::set<Path>& files) const;
    Effect take(const Path& file);
    Effect take_definitions(const Path& file);
    Effect take_language(const Path& file);
    Effect take_page(const Path& file);
    Effect take_picture(const Path& file);
    void refuse_lost_texts(const Path& file) const;
    /// Pages depend on the texts, so a new text can mend or break one.
    void check_pages();

    template <typename Body>
    bool in_order(const Path& file, Body body);
    /// The file as problems name it.
    std::string name_of_file(const Path& file) const;

    Camera& camera_;
    Pictures& pictures_;
    Path root_;
    Path pages_;
    Path languages_;
    Problems problems_;
};

} // namespace sim
