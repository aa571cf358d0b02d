#include "demo/options.h"

#include <getopt.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "platform/path.h"

namespace keplin {
namespace {

// Says what is wrong with the command line, for standard error.
struct WrongOption : std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr const char* kHelp =
    R"(Usage: keplin-demo [options]
The QDX-470 update program with a simulated controller plugged in as port 2.
Port 1 opens and is silent; ports 3 and 4 do not exist. Nothing is sent to a real one.

Options:
  -h, --help        Show this help.
  -v, --version     Show the version.
  --walk            Press the buttons as a technician would, and print every
                    change of the window.
  --again           With --walk: try a second time after a step that failed.
  --port <PORT>     Plug the controller in as port 1 or 2; the other one is
                    silent.
  --file <PATH>     The update file (default: the sample).
  --memory <PATH>   Write the controller's 64 KiB of memory as they are at the
                    end.
  --pictures <DIR>  With --walk: save a picture of the window at each stage.
  --fault <NAME@K>  Let exchange K fail, or all from K on (K+); --fault help
                    lists the faults.
)";

enum Option : int { kWalk = 1, kAgain, kPort, kFile, kMemory, kPictures, kFault };

constexpr option kOptions[] = {
    {"help", no_argument, nullptr, 'h'},
    {"version", no_argument, nullptr, 'v'},
    {"walk", no_argument, nullptr, kWalk},
    {"again", no_argument, nullptr, kAgain},
    {"port", required_argument, nullptr, kPort},
    {"file", required_argument, nullptr, kFile},
    {"memory", required_argument, nullptr, kMemory},
    {"pictures", required_argument, nullptr, kPictures},
    {"fault", required_argument, nullptr, kFault},
    {},
};

std::string FullPath(const std::string& path) {
    return FromPath(std::filesystem::absolute(ToPath(path)).lexically_normal());
}

std::string ReadableFile(const std::string& path) {
    const std::filesystem::path file = ToPath(path);
    if (!std::filesystem::is_regular_file(file) || !std::ifstream(file).is_open())
        throw WrongOption("cannot read the update file: " + FullPath(path));
    return FullPath(path);
}

std::string WritableFile(const std::string& path) {
    if (!std::ofstream(ToPath(path), std::ios::app).is_open())
        throw WrongOption("cannot write the memory to: " + FullPath(path));
    return FullPath(path);
}

std::string MadeFolder(const std::string& path) {
    std::error_code failed;
    std::filesystem::create_directories(ToPath(path), failed);
    if (!std::filesystem::is_directory(ToPath(path), failed))
        throw WrongOption("cannot write pictures to: " + FullPath(path));
    return FullPath(path);
}

simulator::FaultAt ReadFault(const std::string& text) {
    const auto fault = simulator::ParseFault(text);
    if (!fault) throw WrongOption("no such fault: " + text + " (see --fault help)");
    return *fault;
}

std::int32_t ReadPort(const std::string& text) {
    if (text != "1" && text != "2") throw WrongOption("no such port: " + text);
    return text == "1" ? 1 : 2;
}

void PrintFaults() {
    std::cout << "NAME@K strikes at the K-th exchange with the controller (each ping, calibration "
                 "and record is one, from 1), NAME@K+ from there on:\n";
    for (const simulator::Fault& fault : simulator::FaultTable()) {
        std::cout << "  " << fault.name << std::string(17 - fault.name.size(), ' ')
                  << fault.description << "\n";
    }
}

// What the command line says, before any of it is looked at.
struct Given {
    bool help = false;
    bool version = false;
    DemoOptions options;
    std::string port = "2";
    std::vector<std::string> faults;
};

void Take(int option, const char* value, Given& given) {
    switch (option) {
        case 'h':
            given.help = true;
            break;
        case 'v':
            given.version = true;
            break;
        case kWalk:
            given.options.walk = true;
            break;
        case kAgain:
            given.options.again = true;
            break;
        case kPort:
            given.port = value;
            break;
        case kFile:
            given.options.file = value;
            break;
        case kMemory:
            given.options.memory = value;
            break;
        case kPictures:
            given.options.pictures = value;
            break;
        default:
            given.faults.emplace_back(value);
            break;
    }
}

Given Parse(int argc, char** argv) {
    Given given;
    opterr = 0;
    for (int option = 0; (option = getopt_long(argc, argv, ":hv", kOptions, nullptr)) != -1;) {
        const std::string text = argv[optind - 1];
        if (option == '?') throw WrongOption("unknown option: " + text);
        if (option == ':') throw WrongOption("something is to follow " + text);
        Take(option, optarg, given);
    }
    if (optind < argc) throw WrongOption("unexpected: " + std::string(argv[optind]));
    return given;
}

DemoOptions Check(const Given& given, const std::string& sample) {
    DemoOptions options = given.options;
    if (options.again && !options.walk) throw WrongOption("--again goes with --walk");
    if (!options.pictures.empty() && !options.walk)
        throw WrongOption("--pictures goes with --walk");
    options.port = ReadPort(given.port);
    for (const std::string& text : given.faults)
        options.faults.push_back(ReadFault(text));
    options.file = ReadableFile(options.file.empty() ? sample : options.file);
    std::error_code none;  // one of the two is not there yet
    if (std::filesystem::equivalent(ToPath(options.memory), ToPath(options.file), none))
        throw WrongOption("the memory would replace the update file: " + options.file);
    if (!options.pictures.empty()) options.pictures = MadeFolder(options.pictures);
    if (!options.memory.empty()) options.memory = WritableFile(options.memory);
    return options;
}

}  // namespace

std::optional<DemoOptions> ReadDemoOptions(int argc, char** argv, const std::string& sample,
                                           int& exitCode) {
    exitCode = 0;
    try {
        const Given given = Parse(argc, argv);
        if (given.help) {
            std::cout << kHelp;
        } else if (given.version) {
            std::cout << "keplin-demo " KEPLIN_VERSION "\n";
        } else if (std::find(given.faults.begin(), given.faults.end(), "help") !=
                   given.faults.end()) {
            PrintFaults();
        } else {
            return Check(given, sample);
        }
    } catch (const WrongOption& wrong) {
        std::cerr << "keplin-demo: " << wrong.what() << "\n";
        exitCode = 2;
    }
    return std::nullopt;
}

}  // namespace keplin
