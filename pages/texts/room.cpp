#include "pages/texts/room.h"

#include <utility>

namespace pages {

std::map<std::string, TextRoom> narrowest_rooms(ResourceFolder& folder, const std::string& language,
                                                const std::map<std::string, std::string>& texts)
{
    Texts tried;
    for (const auto& [key, text] : texts) {
        tried[key] = {text, {}};
    }
    const bool is_new = folder.languages.count(language) == 0;
    Texts own = std::exchange(folder.languages[language], std::move(tried));
    std::map<std::string, TextRoom> narrowest;
    for (const TextRoom& room : text_rooms(folder, language)) {
        const auto [known, added] = narrowest.emplace(room.key, room);
        if (!added && is_tighter(room, known->second)) {
            known->second = room;
        }
    }
    folder.languages[language] = std::move(own);
    if (is_new) {
        folder.languages.erase(language);
    }
    return narrowest;
}

} // namespace pages
