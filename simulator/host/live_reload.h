// Changed files of the resources become what the menu shows.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "simulator/base/problems.h"
#include "simulator/camera/camera.h"
#include "simulator/host/checker.h"
#include "simulator/host/pictures.h"

namespace sim {

/// Keeps the menu on the last good state of each file: pages, translations, settings definitions and pictures. All calls
/// are made on the menu's thread; the menu may be closed, or not have started at all.
class LiveReload {
public:
    /// The camera shows the resources as they are now; pictures that aren't staged as they are get drawn.
    LiveReload(Camera& camera, Pictures& pictures);

    /// Takes over what is good of a later look at them, and all that was found. What is on screen follows at once, see
    /// reopen_pages(). A changed picture takes as long as drawing it does.
    void take(const Verdict& verdict);

    /// What is wrong at present.
    const std::vector<Finding>& problems() const { return problems_.list(); }

private:
    using Names = std::set<std::string>;
    enum class Effect { None, Redraw, Reopen };

    Effect take_all(const Verdict& verdict, const Names& changed);
    bool take_texts(const Verdict& verdict);
    bool take_definitions(const pages::ResourceFolder& folder);
    bool take_pages(const Verdict& verdict, const Names& changed);
    bool take_pictures(const Names& changed);

    Camera& camera_;
    Pictures& pictures_;
    Files files_; ///< of the last look
    bool definitions_wait_ = false;
    Problems problems_;
};

} // namespace sim
