// Keys from a command line or a file, and their recording.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "simulator/base/listeners.h"
#include "simulator/host/keys.h"

namespace sim {

class MenuSession;

struct TimedKey {
    double at = 0; ///< seconds since the camera's start, never before the key in front of it
    const Key* key = nullptr;
};

/// Keys by name, separated by spaces or commas, to be pressed at once. Throws BadInput as find_key() does.
std::vector<TimedKey> parse_keys(const std::string& script);

/// A file with one key a line, optionally behind the time of its press: "1.250 down". A key without a time follows the
/// one above it at once; "#" begins a comment. Throws BadInput with file and line.
std::vector<TimedKey> read_keys_file(const std::filesystem::path& path);

/// Presses keys at their times.
class KeyPlayer {
public:
    KeyPlayer(std::vector<TimedKey> keys, MenuHost& host) : keys_(std::move(keys)), host_(host) {}

    /// Presses the keys whose time has come. A key that throws counts as pressed.
    void press_due(MenuSession& session);
    /// Presses all keys, each at its time.
    void press_all();
    /// Presses all keys without waiting for their times.
    void press_all_now();

private:
    bool done() const { return next_ == keys_.size(); }
    void press_next() { press(*keys_[next_++].key, host_); }

    std::vector<TimedKey> keys_;
    MenuHost& host_;
    std::size_t next_ = 0;
};

/// Writes the keys that are pressed into a file for read_keys_file(), each at once, so that a killed camera has written
/// all of them.
class KeyRecorder {
public:
    /// Makes the file. Throws BadInput when it can't, and when there is one that isn't empty.
    explicit KeyRecorder(const std::filesystem::path& path);
    /// Listens to the camera.
    void follow(Camera& camera);

private:
    void write(double seconds, const std::string& key);

    std::filesystem::path path_;
    std::ofstream file_;
    Subscription keys_;
};

} // namespace sim
