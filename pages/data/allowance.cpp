#include "pages/data/allowance.h"

namespace pages {

void read_allowances(const nlohmann::json& root, const JsonPlaces& places, std::vector<Allowance>& allowances)
{
    const auto found = root.find(allowance_member);
    if (found == root.end()) {
        return;
    }
    const std::string part = "/" + allowance_member;
    for (const auto& [subject, reason] : found->items()) {
        if (!found->is_object() || !reason.is_string()) {
            throw BadInput(places.of(part + "/" + subject),
                           "'" + allowance_member + R"(' is of another form, expected "RULE KEY": "reason")");
        }
        const std::size_t gap = subject.find(' ');
        allowances.push_back({places.of(part + "/" + subject), subject.substr(0, gap),
                              gap == subject.npos ? "" : subject.substr(gap + 1), reason.get<std::string>()});
    }
}

} // namespace pages
