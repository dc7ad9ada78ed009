// camera-sim as a process of its own.
#pragma once

#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

#include <httplib.h>

#include "tests/simulator/temp_folder.h"

/// camera-sim without a display, in a folder that holds its data too. What it prints can be read to its end.
class CameraProcess {
public:
    /// Arguments and redirections as a shell takes them.
    CameraProcess(const TempFolder& folder, const std::string& arguments)
        : output_(popen(("cd '" + folder.path().string() + "' && " + start + arguments).c_str(), "re")),
          id_(std::stoi(next_line()))
    {
    }

    /// Empty at the end.
    std::string next_line() const
    {
        char line[512] = "";
        return fgets(line, sizeof line, output_) == nullptr ? "" : line;
    }
    void send(int signal) const { kill(id_, signal); }
    /// Waits for its end; returns the status as waitpid has it.
    int end() const { return pclose(output_); }

private:
    static constexpr const char* start =
        "echo $$ && exec env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME=\"$PWD\" '" CAMERA_SIM "' ";
    FILE* output_;
    pid_t id_;
};

/// One that serves its web page.
struct RunningCamera {
    explicit RunningCamera(const std::string& options)
        : process(folder, options + " --still --listen 127.0.0.1:0 2>log.txt"), address(process.next_line()),
          port(std::atoi(address.substr(address.rfind(':') + 1).c_str()))
    {
        EXPECT_NE(port, 0) << folder.read("log.txt");
    }

    ~RunningCamera()
    {
        process.send(SIGTERM);
        EXPECT_EQ(process.end(), 0) << folder.read("log.txt");
    }

    const TempFolder folder;
    const CameraProcess process;
    const std::string address; ///< the line that it printed
    const int port;
};
