#include "pages/preview/shot.h"

#include <algorithm>
#include <cctype>

#include "osd_menu.h"

namespace pages {
namespace {

/// A name as a part of a file's name and of a link.
std::string in_file_name(std::string name)
{
    for (char& letter : name) {
        const bool plain = std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_' || letter == '-';
        letter = plain ? letter : '_';
    }
    return name;
}

/// All that is worth a look in a folder.
class Planner {
public:
    explicit Planner(const ResourceFolder& folder) : folder_(folder) {}

    std::vector<Shot> plan(const std::string& page)
    {
        shots_.clear();
        page_ = page;
        const std::vector<Shot> questions = questions_of(page);
        if (!questions.empty()) {
            shots_ = questions;
        } else {
            shots_.push_back({page, "", {}, ""});
            if (const Element* root = folder_.pages.at(page).root.get(); root != nullptr) {
                add_options(*root);
            }
        }
        name_files();
        return std::move(shots_);
    }

private:
    SettingId setting_of(const Element& item) const
    {
        const auto zone = folder_.definitions.zones.find(item.value("DataZone"));
        return {zone == folder_.definitions.zones.end() ? "" : zone->second, item.value("ItemIndex")};
    }

    bool is_default(const Choice& choice) const
    {
        const auto setting = folder_.definitions.settings.find(choice.setting);
        return setting != folder_.definitions.settings.end() && setting->second.default_text == choice.option;
    }

    static bool has_sub_items(const Element& item)
    {
        const auto holds = [](const auto& option) { return !option->children.empty(); };
        return std::any_of(item.children.begin(), item.children.end(), holds);
    }

    /// Of each item below a page or an option; choices_ leads to it.
    void add_options(const Element& parent)
    {
        for (const auto& item : parent.children) {
            if (!has_sub_items(*item)) {
                continue;
            }
            for (const auto& option : item->children) {
                choices_.push_back({setting_of(*item), option->value("ModeIndex")});
                if (!is_default(choices_.back())) {
                    shots_.push_back({page_, "", choices_, ""});
                }
                add_options(*option);
                choices_.pop_back();
            }
        }
    }

    /// The options that must be chosen for an item to show.
    std::vector<Choice> choices_to(const Element& item) const
    {
        std::vector<Choice> choices;
        for (const Element* option = item.parent; option != nullptr && option->parent != nullptr;
             option = option->parent->parent) {
            choices.insert(choices.begin(), {setting_of(*option->parent), option->value("ModeIndex")});
        }
        return choices;
    }

    std::vector<Shot> questions_of(const std::string& page) const
    {
        std::vector<Shot> questions;
        for (const auto& [name, file] : folder_.pages) {
            if (file.root == nullptr || name == page) {
                continue;
            }
            for_each_element(*file.root, [&, &asking = name](const Element& element) {
                const bool known = !questions.empty() && questions.back().asking == asking;
                if (!known && element.value("ConfirmPage") == page) {
                    questions.push_back({page, asking, choices_to(element), ""});
                }
            });
        }
        return questions;
    }

    /// The first has the page's own name; no two have one name.
    void name_files()
    {
        std::set<std::string> known;
        for (std::size_t i = 0; i < shots_.size(); ++i) {
            Shot& shot = shots_[i];
            std::string name = in_file_name(shot.page);
            name += i > 0 && !shot.asking.empty() ? ".over-" + in_file_name(shot.asking) : "";
            for (const Choice& choice : shot.asking.empty() ? shot.choices : std::vector<Choice>()) {
                name += "." + in_file_name(choice.setting.key) + "-" + in_file_name(choice.option);
            }
            shot.file = name;
            for (int number = 2; !known.insert(shot.file).second; ++number) {
                shot.file = name + "." + std::to_string(number);
            }
        }
    }

    const ResourceFolder& folder_;
    std::string page_;
    std::vector<Choice> choices_;
    std::vector<Shot> shots_;
};

/// Puts the cursor on the item that asks and presses home, so that its button looks as it does while it asks.
void ask(Menu& menu, const std::string& question)
{
    const std::vector<tagITEM_NODE_S*> rows = menu.rows();
    const auto asks = [&](const tagITEM_NODE_S* row) { return row->acConfirmPage == question; };
    const auto asking = std::find_if(rows.begin(), rows.end(), asks);
    if (asking != rows.end()) {
        for (tagITEM_NODE_S* row : rows) {
            row->bActive = row == *asking ? 1 : 0;
        }
        menu.key(OSD_MENU_HandleKeyHome);
    }
    if (menu.top() == nullptr || menu.top()->acPageName != question) { // it doesn't show, or can't be pressed
        (void)menu.draw();
        (void)menu.open(question); // what can be read of it is shown
    }
}

} // namespace

std::string label_of(const Shot& shot)
{
    if (!shot.asking.empty()) {
        return shot.page + " over " + shot.asking;
    }
    std::string label = shot.page;
    for (const Choice& choice : shot.choices) {
        label += (&choice == &shot.choices.front() ? ": " : ", ") + choice.setting.key + " = " + choice.option;
    }
    return label;
}

std::vector<Shot> shots_of(const ResourceFolder& folder, const Selection& selection)
{
    Planner planner(folder);
    std::vector<Shot> shots;
    for (const auto& [name, file] : folder.pages) {
        if (takes_page(selection, name)) {
            for (Shot& shot : planner.plan(name)) {
                shots.push_back(std::move(shot));
            }
        }
    }
    return shots;
}

Canvas picture_of(Menu& menu, const Shot& shot)
{
    menu.close_all();
    menu.forget_values();
    for (const Choice& choice : shot.choices) {
        menu.store(choice.setting, choice.option);
    }
    SDL_Surface* surface = menu.draw(); // what was drawn last would show beside a question
    (void)SDL_FillRect(surface, nullptr, 0);
    if (shot.asking.empty()) {
        (void)menu.open(shot.page); // what can be read of it is shown
    } else {
        (void)menu.open(shot.asking);
        ask(menu, shot.page);
    }
    surface = menu.draw();
    Canvas picture = landscape(surface->w, surface->h);
    picture.lay_over(*surface);
    menu.close_all();
    menu.forget_values();
    return picture;
}

} // namespace pages
