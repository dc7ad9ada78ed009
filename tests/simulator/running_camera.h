// camera-sim as a process of its own, serving its web page.
#pragma once

#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <httplib.h>

#include "tests/simulator/temp_folder.h"

class RunningCamera {
public:
    explicit RunningCamera(std::vector<std::string> options = {})
    {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        child_ = fork();
        if (child_ == 0) {
            dup2(ends[1], STDOUT_FILENO);
            close(ends[0]);
            (void)freopen(folder.path("log.txt").c_str(), "w", stderr);
            options.insert(options.begin(), {CAMERA_SIM, "--data", folder.path("data"), "--listen", "127.0.0.1:0"});
            std::vector<char*> arguments;
            for (std::string& option : options) {
                arguments.push_back(option.data());
            }
            arguments.push_back(nullptr);
            execv(CAMERA_SIM, arguments.data());
            _exit(127);
        }
        close(ends[1]);
        FILE* lines = fdopen(ends[0], "r");
        char line[200] = "";
        EXPECT_NE(fgets(line, sizeof line, lines), nullptr) << folder.read("log.txt");
        fclose(lines);
        address = line;
        port = std::atoi(address.substr(address.rfind(':') + 1).c_str());
    }

    ~RunningCamera()
    {
        kill(child_, SIGTERM);
        int status = -1;
        waitpid(child_, &status, 0);
        EXPECT_EQ(status, 0) << folder.read("log.txt");
    }

    /// A connection for one request.
    httplib::Client client() const
    {
        httplib::Client client("127.0.0.1", port);
        client.set_read_timeout(30);
        return client;
    }

    const TempFolder folder;
    std::string address; ///< the line that it printed
    int port = 0;

private:
    pid_t child_ = 0;
};
