// keplin-demo: the whole program with a simulated controller plugged in.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "app/qt/application.h"
#include "app/qt/manual_key.h"
#include "app/qt/program.h"
#include "demo/change_printer.h"
#include "demo/controller.h"
#include "demo/file_image.h"
#include "demo/mark.h"
#include "demo/options.h"
#include "demo/stage_pictures.h"
#include "demo/walk.h"

namespace keplin {
namespace {

class Demonstration {
  public:
    explicit Demonstration(DemoOptions options)
        : options_(std::move(options)),
          controller_(std::make_unique<DemoController>(options_.port, options_.faults)),
          program_([this] { return controller_->DevicePaths(); }, Hooks()),
          ribbon_(MarkAsDemonstration(program_.drawing)),
          pictures_(program_.window, program_.drawing, ribbon_, options_.pictures),
          walk_(program_.window, program_.drawing, pictures_, options_.again) {
        OpenManualOnF1(program_.drawing);
    }

    int Run() {
        // The open-file dialog starts here.
        QDir::setCurrent(QFileInfo(QFile::decodeName(options_.file.c_str())).absolutePath());
        if (options_.walk) {
            printer_.emplace(program_.window);
            QTimer::singleShot(0, [this] { walk_.Go(); });
        }
        program_.session.Main();
        return QApplication::exec();
    }

  private:
    StandardDesktop::Hooks Hooks() {
        StandardDesktop::Hooks hooks;
        if (options_.walk) {
            hooks.openFile = [this](const OpenFileRequest&) { return options_.file; };
        }
        hooks.beforeEnd = [this] { return End(); };
        return hooks;
    }

    // The exit code: 0 when nothing was to be done, or was done and is true.
    int End() {
        const DemoController::Memory memory = controller_->ReadMemory();
        controller_.reset();  // the line hangs up before anything else ends
        if (!Save(memory)) return 1;
        return options_.walk ? Judge(memory) : 0;
    }

    bool Save(const DemoController::Memory& memory) const {
        if (options_.memory.empty()) return true;
        std::ofstream file(options_.memory, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(memory.data()),
                   static_cast<std::streamsize>(memory.size()));
        file.close();
        if (!file) std::cerr << "keplin-demo: cannot write " << options_.memory << "\n";
        return !file.fail();
    }

    int Judge(const DemoController::Memory& memory) const {
        const std::string complaint = Complaint(memory);
        std::cout << (complaint.empty() ? "The update is complete, and the controller's memory "
                                          "holds exactly the file's data."
                                        : complaint)
                  << std::endl;
        return complaint.empty() ? 0 : 1;
    }

    // What is wrong after a walk, or nothing.
    std::string Complaint(const DemoController::Memory& memory) const {
        if (!program_.window.UpdateComplete()) return "The completion page was not reached.";
        const DemoController::Memory image = ImageOfFile(options_.file);
        if (image.empty()) {
            return "The completion page stands, but what the file describes is no memory.";
        }
        const auto different = std::mismatch(memory.begin(), memory.end(), image.begin()).first;
        if (different == memory.end()) return "";
        return "The completion page stands, but the controller's memory differs from the file at "
               "address " +
               std::to_string(different - memory.begin()) + ".";
    }

    DemoOptions options_;
    std::unique_ptr<DemoController> controller_;
    Program program_;
    QWidget& ribbon_;
    StagePictures pictures_;
    Walk walk_;
    std::optional<ChangePrinter> printer_;
};

}  // namespace
}  // namespace keplin

int main(int argc, char** argv) {
    int exitCode = 0;
    auto options = keplin::ReadDemoOptions(argc, argv, exitCode);
    if (!options) return exitCode;
    const auto application = keplin::OpenDisplay(argc, argv, "keplin-demo");
    try {
        return keplin::Demonstration(std::move(*options)).Run();
    } catch (const std::exception& error) {
        std::cerr << "keplin-demo: " << error.what() << "\n";
        return 2;
    }
}
