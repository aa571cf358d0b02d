#include "demo/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace keplin {
namespace {

// Says what is wrong with the command line, for standard error.
struct WrongOption : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The installed programs and those of a build find the sample in the same place beside them.
QString SampleFile(const char* program) {
    const QFileInfo self(QFile::exists("/proc/self/exe") ? QFile::symLinkTarget("/proc/self/exe")
                                                         : QFile::decodeName(program));
    return self.dir().filePath("../share/keplin/QDX-470-sample.HEX");
}

std::string FullPath(const QString& path) {
    return QFile::encodeName(QDir::cleanPath(QFileInfo(path).absoluteFilePath())).toStdString();
}

std::string ReadableFile(const QString& path) {
    if (!QFileInfo(path).isFile() || !QFile(path).open(QFile::ReadOnly)) {
        throw WrongOption("cannot read the update file: " + FullPath(path));
    }
    return FullPath(path);
}

std::string WritableFile(const QString& path) {
    if (!QFile(path).open(QFile::Append)) {
        throw WrongOption("cannot write the memory to: " + FullPath(path));
    }
    return FullPath(path);
}

std::string WritableFolder(const QString& path) {
    if (!QDir().mkpath(path) || !QFileInfo(path).isWritable()) {
        throw WrongOption("cannot write pictures to: " + FullPath(path));
    }
    return FullPath(path);
}

simulator::FaultAt ReadFault(const QString& text) {
    const auto fault = simulator::ParseFault(text.toStdString());
    if (!fault) throw WrongOption("no such fault: " + text.toStdString() + " (see --fault help)");
    return *fault;
}

std::int32_t ReadPort(const QString& text) {
    if (text != "1" && text != "2") throw WrongOption("no such port: " + text.toStdString());
    return text.toInt();
}

void AddOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        "The QDX-470 update program with a simulated controller plugged in as port 2.\n"
        "Port 1 opens and is silent; ports 3 and 4 do not exist. Nothing is sent to a real one.");
    parser.addOptions({
        {{"h", "help"}, "Show this help."},
        {{"v", "version"}, "Show the version."},
        {"walk", "Press the buttons as a technician would, and print every change of the window."},
        {"again", "With --walk: try a second time after a step that failed."},
        {"port", "Plug the controller in as port 1 or 2; the other one is silent.", "PORT"},
        {"file", "The update file (default: the sample).", "PATH"},
        {"memory", "Write the controller's 64 KiB of memory as they are at the end.", "PATH"},
        {"pictures", "With --walk: save a picture of the window at each stage.", "DIR"},
        {"fault", "Let exchange K fail, or all from K on (K+); --fault help lists the faults.",
         "NAME@K"},
    });
}

void PrintFaults() {
    std::cout << "NAME@K strikes at the K-th exchange with the controller (each ping, calibration "
                 "and record is one, from 1), NAME@K+ from there on:\n";
    for (const simulator::Fault& fault : simulator::FaultTable()) {
        std::cout << "  " << fault.name << std::string(17 - fault.name.size(), ' ')
                  << fault.description << "\n";
    }
}

DemoOptions Read(const QCommandLineParser& parser, const char* program) {
    DemoOptions options;
    options.walk = parser.isSet("walk");
    options.again = parser.isSet("again");
    for (const char* option : {"again", "pictures"}) {
        if (parser.isSet(option) && !options.walk) {
            throw WrongOption("--" + std::string(option) + " goes with --walk");
        }
    }
    if (parser.isSet("port")) options.port = ReadPort(parser.value("port"));
    for (const QString& text : parser.values("fault"))
        options.faults.push_back(ReadFault(text));
    options.file = ReadableFile(parser.isSet("file") ? parser.value("file") : SampleFile(program));
    if (parser.isSet("memory")) options.memory = WritableFile(parser.value("memory"));
    if (!options.memory.empty() && std::filesystem::equivalent(options.memory, options.file)) {
        throw WrongOption("the memory would replace the update file: " + options.memory);
    }
    if (parser.isSet("pictures")) options.pictures = WritableFolder(parser.value("pictures"));
    return options;
}

}  // namespace

std::optional<DemoOptions> ReadDemoOptions(int argc, char** argv, int& exitCode) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);
    QCommandLineParser parser;
    AddOptions(parser);
    exitCode = 0;
    try {
        if (!parser.parse(arguments)) throw WrongOption(parser.errorText().toStdString());
        if (!parser.positionalArguments().isEmpty()) {
            throw WrongOption("unexpected: " + parser.positionalArguments().first().toStdString());
        }
        if (parser.isSet("help")) {
            // Qt knows the program's name only once there is an application.
            std::cout
                << parser.helpText().replace("<executable_name>", "keplin-demo").toStdString();
        } else if (parser.isSet("version")) {
            std::cout << "keplin-demo " KEPLIN_VERSION "\n";
        } else if (parser.values("fault").contains("help")) {
            PrintFaults();
        } else {
            return Read(parser, argv[0]);
        }
    } catch (const WrongOption& wrong) {
        std::cerr << "keplin-demo: " << wrong.what() << "\n";
        exitCode = 2;
    }
    return std::nullopt;
}

}  // namespace keplin
