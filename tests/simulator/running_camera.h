// camera-sim while it serves its web page.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include <httplib.h>

#include "tests/simulator/camera_process.h"
#include "tests/simulator/temp_folder.h"

struct RunningCamera {
    explicit RunningCamera(const std::string& options)
        : process(folder.path(), CAMERA_SIM, options + " --still --listen 127.0.0.1:0 2>log.txt"),
          address(process.next_line()), port(port_of(address))
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
