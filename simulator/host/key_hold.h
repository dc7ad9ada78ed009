// A key of the remote control that is held down.
#pragma once

#include <chrono>
#include <optional>

#include "simulator/host/keys.h"

namespace sim {

/// Says when a held key is pressed again: after 300 ms, then every 100 ms. One key at a time, as on a remote control. A
/// hold ends by itself 3 s after it began or was last renewed: its end may get lost, with a browser that dies.
class KeyHold {
public:
    using Clock = std::chrono::steady_clock;

    /// The key has just been pressed.
    void begin(const Key& key, Clock::time_point now);
    /// It is still down. Nothing happens when it isn't held any more.
    void renew(const Key& key, Clock::time_point now);
    /// Nothing happens when another key is held by now.
    void end(const Key& key);
    void end() { key_ = nullptr; }

    /// The key that is held; null for none.
    const Key* key() const { return key_; }

    /// The key, when it is to be pressed again; call it once for each press. A camera that was busy leaves presses out.
    const Key* due(Clock::time_point now);
    /// When due() will have something to say.
    std::optional<Clock::time_point> next() const;

private:
    const Key* key_ = nullptr;
    Clock::time_point next_;
    Clock::time_point last_;
};

} // namespace sim
