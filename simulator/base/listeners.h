// Who wants to hear of something, and until when.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace sim {

/// As long as it lives, its listener hears. It may outlive whom it listens to.
using Subscription = std::shared_ptr<const void>;

/// All calls on one thread; a listener makes no other ones listen.
template <typename... What>
class Listeners {
public:
    using Function = std::function<void(const What&... what)>;

    /// Listeners are called in the order in which they came.
    [[nodiscard]] Subscription listen(Function function)
    {
        const auto has_left = [](const auto& one) { return one.expired(); };
        all_.erase(std::remove_if(all_.begin(), all_.end(), has_left), all_.end());
        auto listener = std::make_shared<const Function>(std::move(function));
        all_.push_back(listener);
        return listener;
    }

    void tell(const What&... what) const
    {
        for (const auto& one : all_) {
            if (const auto listener = one.lock()) {
                (*listener)(what...);
            }
        }
    }

private:
    std::vector<std::weak_ptr<const Function>> all_;
};

} // namespace sim
