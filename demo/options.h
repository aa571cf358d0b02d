// What keplin-demo was asked to do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulator/faults.h"

namespace keplin {

struct DemoOptions {
    bool walk = false;      // press the buttons by itself
    bool again = false;     // in a walk: a second try after a step that failed
    std::int32_t port = 2;  // of the controller, 1 or 2
    std::string file;       // the update file, a full path
    std::string memory;     // where the controller's memory is written; empty: nowhere
    std::string pictures;   // the folder for the pictures; empty: none
    std::vector<simulator::FaultAt> faults;
};

// The options, with the update file `sample` where the command line names none; or nothing when the
// program is to end at once with `exitCode`: 0 after --help
// and the like, 2 after a wrong option or a file that cannot be used, which standard error names.
std::optional<DemoOptions> ReadDemoOptions(int argc, char** argv, const std::string& sample,
                                           int& exitCode);

}  // namespace keplin
