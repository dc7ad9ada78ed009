#include "simulator/host/key_script.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "simulator/base/data.h"
#include "simulator/host/menu_session.h"

namespace sim {
namespace {

constexpr double latest_time = 1e6; // eleven days

double parse_time(const std::string& word)
{
    double seconds = -1;
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, seconds, std::chars_format::fixed);
    if (result.ec != std::errc() || result.ptr != end || !(seconds >= 0 && seconds <= latest_time)) {
        throw BadInput("'" + word + "' is no time in seconds, expected something like: 1.250 down");
    }
    return seconds;
}

/// The key of one line whose words these are.
TimedKey parse_line(const std::vector<std::string>& words, double time_before)
{
    if (words.size() > 2) {
        throw BadInput("expected a key, or a time and a key, in one line");
    }
    if (words.size() == 1) {
        return {time_before, &find_key(words[0])};
    }
    const double at = parse_time(words[0]);
    if (at < time_before) {
        throw BadInput("the time " + words[0] + " lies before that of a key above it");
    }
    return {at, &find_key(words[1])};
}

std::vector<std::string> split(const std::string& text)
{
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

} // namespace

std::vector<TimedKey> parse_keys(const std::string& script)
{
    std::string spaced = script;
    std::replace(spaced.begin(), spaced.end(), ',', ' ');
    std::vector<TimedKey> keys;
    for (const std::string& word : split(spaced)) {
        keys.push_back({0, &find_key(word)});
    }
    return keys;
}

std::vector<TimedKey> read_keys_file(const std::filesystem::path& path)
{
    std::istringstream lines(read_text_file(path));
    std::vector<TimedKey> keys;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        const std::vector<std::string> words = split(line.substr(0, line.find('#')));
        if (words.empty()) {
            continue;
        }
        try {
            keys.push_back(parse_line(words, keys.empty() ? 0 : keys.back().at));
        } catch (const BadInput& error) {
            throw BadInput(path.string() + ":" + std::to_string(number) + ": " + error.what());
        }
    }
    return keys;
}

void KeyPlayer::press_due(MenuSession& session)
{
    while (!done() && keys_[next_].at <= host_.camera().uptime.seconds()) {
        session.press(*keys_[next_++].key);
    }
}

void KeyPlayer::press_all()
{
    while (!done()) {
        const std::chrono::duration<double> wait(keys_[next_].at - host_.camera().uptime.seconds());
        std::this_thread::sleep_for(wait); // at once when the time is over
        press_next();
    }
}

void KeyPlayer::press_all_now()
{
    while (!done()) {
        press_next();
    }
}

KeyRecorder::KeyRecorder(const std::filesystem::path& path) : path_(path)
{
    std::error_code none; // what can't be looked at can't be written either
    if (std::filesystem::exists(path, none) && !std::filesystem::is_empty(path, none)) {
        throw BadInput("record " + path.string() + ": the file exists; choose another name, or remove it first");
    }
    file_.open(path);
    if (!file_) {
        throw BadInput("record " + path.string() + ": can't write there");
    }
}

void KeyRecorder::follow(Camera& camera)
{
    keys_ = camera.events.listen([this, &camera](const Event& event) {
        if (event.kind == "key") {
            write(camera.uptime.seconds(), event.what);
        }
    });
}

void KeyRecorder::write(double seconds, const std::string& key)
{
    char line[64];
    (void)std::snprintf(line, sizeof line, "%.3f %s\n", seconds, key.c_str());
    if (!(file_ << line << std::flush)) {
        throw std::runtime_error("record " + path_.string() + ": the key '" + key + "' can't be written");
    }
}

} // namespace sim
