// A folder of its own for each test, and what tests put into it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "simulator/base/data_folder.h"

class TempFolder {
public:
    std::filesystem::path path(const std::string& name = "") const { return folder_.path() / name; }
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
    sim::TemporaryFolder folder_;
};

inline std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    return text.replace(text.find(from), from.size(), to);
}

/// A settings definitions file with the languages English and German, with a list of further settings and the start of
/// a list of further languages.
inline std::string definitions_with(const std::string& settings, const std::string& zones = "{}",
                                    const std::string& languages = "")
{
    return R"({"facts": {"FwVersion": "3.1", "IspVersion": "2", "AfVersion": "3", "AiVersion": "4", "VideoFormat": "5",
                         "DeviceName": "6", "SN": "7", "Mac": "8", "NdiVersion": "9", "FullNdiVersion": "10",
                         "NdiStatus": "11", "DeviceType": "Dome"}, "zones": )" +
           zones + R"(, "languages": {)" + languages + R"("English": "English", "German": "Deutsch"}, "settings": [)" +
           settings + (settings.empty() ? "" : ", ") +
           R"({"key": "Language", "kind": "option", "options": ["English", "German"], "default": "German"}]})";
}
