#include "simulator/host/key_hold.h"

#include <algorithm>

namespace sim {
namespace {

constexpr std::chrono::milliseconds first_repeat{300};
constexpr std::chrono::milliseconds next_repeat{100};
constexpr std::chrono::seconds longest_silence{3};

} // namespace

void KeyHold::begin(const Key& key, Clock::time_point now)
{
    key_ = &key;
    next_ = now + first_repeat;
    last_ = now + longest_silence;
}

void KeyHold::renew(const Key& key, Clock::time_point now)
{
    if (key_ == &key) {
        last_ = now + longest_silence;
    }
}

void KeyHold::end(const Key& key)
{
    if (key_ == &key) {
        key_ = nullptr;
    }
}

const Key* KeyHold::due(Clock::time_point now)
{
    if (key_ == nullptr || now < next_) {
        return nullptr;
    }
    const Key* key = key_;
    next_ = std::max(next_ + next_repeat, now);
    if (next_ > last_) {
        key_ = nullptr;
    }
    return key;
}

std::optional<KeyHold::Clock::time_point> KeyHold::next() const
{
    return key_ == nullptr ? std::nullopt : std::optional(next_);
}

} // namespace sim
