// camera-sim as a process of its own.
#pragma once

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/types.h>

/// camera-sim without a display, in a folder that holds its data too. What it prints can be read to its end.
class CameraProcess {
public:
    /// Arguments and redirections as a shell takes them.
    CameraProcess(const std::filesystem::path& folder, const std::string& program, const std::string& arguments)
        : output_(popen(("cd '" + folder.string() + "' && " + start + "'" + program + "' " + arguments).c_str(), "re")),
          id_(std::atoi(next_line().c_str()))
    {
    }

    /// Empty at the end.
    std::string next_line() const
    {
        char line[512] = "";
        return fgets(line, sizeof line, output_) == nullptr ? "" : line;
    }
    pid_t id() const { return id_; }
    void send(int signal) const { kill(id_, signal); }
    /// Waits for its end; returns the status as waitpid has it.
    int end() const { return pclose(output_); }

private:
    static constexpr const char* start = "echo $$ && exec env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME=\"$PWD\" ";
    FILE* output_;
    pid_t id_;
};

/// In the address that a camera prints; 0 for none.
inline int port_of(const std::string& address) { return std::atoi(address.substr(address.rfind(':') + 1).c_str()); }
