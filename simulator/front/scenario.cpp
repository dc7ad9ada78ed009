#include "simulator/front/scenario.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <optional>
#include <sstream>
#include <vector>

#include "simulator/base/data.h"
#include "simulator/host/key_script.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

struct ScenarioOptions {
    std::optional<std::string> language;
    std::uint32_t style = 0;
    std::string page;
    std::map<std::string, std::string> settings; ///< key to value
};

/// What a play gave.
struct Outcome {
    std::vector<std::string> calls;
    Image frame;
};

std::map<std::string, std::string> read_settings(const nlohmann::json& object, const Place& place)
{
    FieldReader reader(object, place, "'settings'");
    std::map<std::string, std::string> values;
    for (const auto& [key, value] : object.items()) {
        values[key] = reader.text(key, 0, OSD_CFG_VALUE_LEN - 1);
    }
    return values;
}

ScenarioOptions read_options(const std::filesystem::path& path)
{
    ScenarioOptions options;
    if (!std::filesystem::exists(path)) {
        return options;
    }
    const nlohmann::json root = load_json_object(path);
    FieldReader reader(root, Place{path.string()});
    if (reader.has("language")) {
        options.language = reader.text("language", 1, OSD_TEXT_LEN - 1);
    }
    if (reader.has("style")) {
        options.style = static_cast<std::uint32_t>(reader.integer("style"));
    }
    if (options.style >= style_count) {
        reader.complain("style", "'style' is " + std::to_string(options.style), style_words);
    }
    if (reader.has("page")) {
        options.page = reader.text("page", 1, OSD_TEXT_LEN - 1);
    }
    if (reader.has("settings")) {
        options.settings = read_settings(reader.field("settings", "an object"), Place{path.string()});
    }
    reader.refuse_other_fields();
    return options;
}

void set_up(Camera& camera, const std::map<std::string, std::string>& settings)
{
    for (const auto& [key, value] : settings) {
        const Setting* setting = camera.settings.find_key(key);
        camera.settings.set(setting == nullptr ? SettingId{"", key} : setting->id, value);
    }
}

Outcome play(const std::filesystem::path& folder)
{
    const std::vector<TimedKey> keys = read_keys_file(folder / "keys.txt");
    const ScenarioOptions options = read_options(folder / "options.json");
    const TemporaryFolder data;
    Outcome outcome;
    Camera camera({OSD_RESOURCE_DIR, data.path(), false, {false, true, false}, options.language, folder / "pages"});
    set_up(camera, options.settings);
    MenuHost host(camera, {2, options.style, false, options.page, "Prompt"});
    const Subscription calls =
        camera.events.listen([&outcome](const Event& event) { outcome.calls.push_back(to_line(event)); });
    KeyPlayer(keys, host).press_all_now();
    outcome.frame = camera.video.look_at(0);
    return outcome;
}

bool is_comment(const std::string& line) { return line.empty() || line.front() == '#'; }

std::string line_or_end(const std::vector<std::string>& lines, std::size_t place)
{
    return place < lines.size() ? "'" + lines[place] + "'" : "no more";
}

/// Throws ScenarioDiffers at the first line that differs.
void compare_calls(const std::filesystem::path& file, const std::vector<std::string>& calls)
{
    std::istringstream text(read_text_file(file));
    std::vector<std::string> expected;
    std::vector<int> numbers;
    int number = 0;
    for (std::string line; std::getline(text, line);) {
        ++number;
        if (!is_comment(line)) {
            expected.push_back(line);
            numbers.push_back(number);
        }
    }
    numbers.push_back(number + 1);
    const auto same = std::mismatch(expected.begin(), expected.end(), calls.begin(), calls.end());
    const auto place = static_cast<std::size_t>(same.first - expected.begin());
    if (place < std::max(expected.size(), calls.size())) {
        throw ScenarioDiffers(file.string() + ":" + std::to_string(numbers[place]) + ": expected " +
                              line_or_end(expected, place) + ", got " + line_or_end(calls, place));
    }
}

std::string hex(Color color)
{
    std::ostringstream text;
    text << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << (color & 0xFFFFFFU);
    return text.str();
}

std::string size_text(Size size) { return std::to_string(size.width) + " by " + std::to_string(size.height); }

/// The first difference of two pictures in words; empty when there is none.
std::string difference(const Image& expected, const Image& actual)
{
    if (expected.size.width != actual.size.width || expected.size.height != actual.size.height) {
        return "expected " + size_text(expected.size) + " pixels, got " + size_text(actual.size);
    }
    const auto differ = std::mismatch(expected.pixels.begin(), expected.pixels.end(), actual.pixels.begin(),
                                      [](Color a, Color b) { return ((a ^ b) & 0xFFFFFFU) == 0; });
    if (differ.first == expected.pixels.end()) {
        return "";
    }
    const auto place = differ.first - expected.pixels.begin();
    return "pixel " + std::to_string(place % expected.size.width) + "," + std::to_string(place / expected.size.width) +
           ": expected " + hex(*differ.first) + ", got " + hex(*differ.second);
}

void compare_frame(const std::filesystem::path& file, const std::string& name, const Image& actual)
{
    const std::string words = difference(load_png(file), actual);
    if (!words.empty()) {
        const std::string picture = name + ".actual.png";
        save_png(actual, picture);
        throw ScenarioDiffers(file.string() + ": " + words + "; " + picture + " shows what was got");
    }
}

/// The old lines up to the first call that differs, with their comments, and the calls from there on.
std::string merge_calls(const std::string& old, const std::vector<std::string>& calls)
{
    std::istringstream lines(old);
    std::string merged;
    std::size_t place = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!is_comment(line) && (place == calls.size() || line != calls[place])) {
            break;
        }
        merged += line + "\n";
        place += is_comment(line) ? 0 : 1;
    }
    for (; place < calls.size(); ++place) {
        merged += calls[place] + "\n";
    }
    return merged;
}

void update_files(const std::filesystem::path& folder, const Outcome& outcome)
{
    const std::filesystem::path calls = folder / "calls.txt";
    const std::string old = std::filesystem::exists(calls) ? read_text_file(calls) : "";
    const std::string merged = merge_calls(old, outcome.calls);
    if (merged != old) {
        if (!(std::ofstream(calls) << merged << std::flush)) {
            throw BadInput(calls.string() + ": can't be written");
        }
        std::cout << "wrote " << calls.string() << std::endl;
    }
    const std::filesystem::path frame = folder / "frame.png";
    if (!std::filesystem::exists(frame) || !difference(load_png(frame), outcome.frame).empty()) {
        save_png(outcome.frame, frame);
        std::cout << "wrote " << frame.string() << std::endl;
    }
}

} // namespace

void play_scenario(const std::filesystem::path& folder, bool update)
{
    if (!std::filesystem::is_directory(folder)) {
        throw BadInput("scenario " + folder.string() + ": no such folder");
    }
    const Outcome outcome = play(folder);
    if (update) {
        update_files(folder, outcome);
        return;
    }
    const std::string name = std::filesystem::canonical(folder).filename().string();
    compare_calls(folder / "calls.txt", outcome.calls);
    compare_frame(folder / "frame.png", name, outcome.frame);
    std::cout << "scenario " << name << ": " << outcome.calls.size() << " events and the picture are as expected"
              << std::endl;
}

} // namespace sim
