// camera-sim as a process of its own.
#pragma once

#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

#include <httplib.h>

#include "tests/simulator/temp_folder.h"

/// camera-sim with arguments and redirections as a shell takes them. What it prints can be read to its end.
class CameraProcess {
public:
    explicit CameraProcess(const std::string& arguments)
        : output_(popen(("echo $$; exec '" CAMERA_SIM "' " + arguments).c_str(), "re"))
    {
        id_ = std::stoi(next_line());
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
    FILE* output_;
    pid_t id_ = 0;
};

/// One that serves its web page.
struct RunningCamera {
    explicit RunningCamera(const std::string& options)
        : process(options + " --listen 127.0.0.1:0 --data '" + folder.path("data").string() + "' 2>'" +
                  folder.path("log.txt").string() + "'"),
          address(process.next_line()), port(std::atoi(address.substr(address.rfind(':') + 1).c_str()))
    {
        EXPECT_NE(port, 0) << folder.read("log.txt");
    }

    ~RunningCamera()
    {
        process.send(SIGTERM);
        EXPECT_EQ(process.end(), 0) << folder.read("log.txt");
    }

    /// A connection for one request.
    httplib::Client client() const
    {
        httplib::Client client("127.0.0.1", port);
        client.set_read_timeout(30);
        return client;
    }

    const TempFolder folder;
    const CameraProcess process;
    const std::string address; ///< the line that it printed
    const int port;
};
