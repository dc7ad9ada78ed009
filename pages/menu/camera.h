// What stands behind the platform services that the library asks: the texts, pages, pictures and settings of a folder.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "osd_menu.h"
#include "pages/menu/menu.h"

namespace pages {

class Camera {
public:
    void begin(const ResourceFolder& folder);
    void end() { folder_ = nullptr; }

    const ResourceFolder& folder() const { return *folder_; }
    const View& view() const { return view_; }
    void set_view(const View& view) { view_ = view; }
    bool is_drawing() const { return drawing_; }
    void set_drawing(bool drawing) { drawing_ = drawing; }

    /// While pictures are blank, their files aren't read: each is a single pixel, to be stretched.
    bool has_blank_pictures() const { return blank_pictures_; }
    void set_blank_pictures(bool blank) { blank_pictures_ = blank; }

    /// The font file that the library opened last.
    const std::string& font_file() const { return font_file_; }
    void set_font_file(std::string file) { font_file_ = std::move(file); }

    /// Null when there is no such setting.
    const Setting* find(const char* parent, const char* key) const;
    const std::string& value_of(const Setting& setting) const;
    void store(const Setting& setting, const std::string& value) { values_[setting.id] = value; }

    /// All settings have their defaults again.
    void forget_values() { values_.clear(); }

    void add_line(std::string line) { lines_.push_back(std::move(line)); }
    std::vector<std::string> take_lines() { return std::exchange(lines_, {}); }

    /// The host's functions.
    static int apply(tagITEM_NODE_S* item);
    static const char* parent_of_zone(const char* zone);
    static void answer(void* user, tagOSD_MENU_GET_EVENT_E event, tagOSD_MENU_CONTROL_PARAM_S* answer);

private:
    const ResourceFolder* folder_ = nullptr;
    View view_;
    bool drawing_ = false;
    bool blank_pictures_ = false;
    std::string font_file_;
    std::map<SettingId, std::string> values_; ///< that differ from the defaults
    std::vector<std::string> lines_;
};

/// The one behind the library.
Camera& camera();

} // namespace pages
