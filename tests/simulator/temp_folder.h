// A folder of its own for each test, and what tests put into it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

class TempFolder {
public:
    TempFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "camera-sim-test-XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    ~TempFolder() { std::filesystem::remove_all(path_); }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::filesystem::path path(const std::string& name = "") const { return path_ / name; }
    std::filesystem::path write(const std::string& name, const std::string& text) const
    {
        std::filesystem::create_directories(path(name).parent_path());
        std::ofstream(path(name), std::ios::binary) << text;
        return path(name);
    }
    std::string read(const std::string& name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

private:
    std::filesystem::path path_;
};

/// The message of the error that an action throws; empty when it throws none of this type.
template <typename Error, typename Action>
std::string error_of(Action action)
{
    try {
        action();
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}

/// A settings definitions file with two languages and these further settings.
inline std::string definitions_with(const std::string& settings, const std::string& zones = "{}")
{
    return R"({"languages": {"English": "English", "German": "Deutsch"},
               "facts": {"FwVersion": "3.1", "IspVersion": "2", "AfVersion": "3", "AiVersion": "4", "VideoFormat": "5",
                         "DeviceName": "6", "SN": "7", "Mac": "8", "NdiVersion": "9", "FullNdiVersion": "10",
                         "NdiStatus": "11", "DeviceType": "Dome"}, "zones": )" +
           zones + R"(, "settings": [{"key": "Language", "kind": "option", "options": ["English", "German"],
                                      "default": "German"})" +
           (settings.empty() ? "" : ", ") + settings + "]}";
}
