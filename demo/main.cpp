// keplin-demo: the whole program with a simulated controller plugged in.
#include <QAbstractButton>
#include <QPixmap>
#include <QTimer>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "app/qt/application.h"
#include "app/qt/manual_key.h"
#include "app/qt/program.h"
#include "demo/controller.h"
#include "demo/mark.h"
#include "demo/options.h"
#include "demo/outcome.h"
#include "demo/walk.h"
#include "platform/path.h"

namespace keplin {
namespace {

class Demonstration {
  public:
    explicit Demonstration(DemoOptions options)
        : options_(std::move(options)),
          controller_(std::make_unique<DemoController>(options_.port, options_.faults)),
          program_([this] { return controller_->DevicePaths(); },
                   HooksOf(options_, [this] { return End(); })),
          ribbon_(MarkAsDemonstration(program_.drawing)) {
        OpenManualOnF1(program_.drawing);
    }

    int Run() {
        if (options_.walk) {
            walk_.emplace(
                program_.window, options_, [this](const Button& button) { Press(button); },
                [this](const std::string& path) { return SaveWindow(path); });
            QTimer::singleShot(0, [this] { walk_->Go(); });
        }
        program_.session.Main();
        return QApplication::exec();
    }

  private:
    // The exit code: 0 when nothing was to be done, or was done and is true.
    int End() {
        const DemoController::Memory memory = controller_->ReadMemory();
        controller_.reset();  // the line hangs up before anything else ends
        return EndOfDemo(options_, program_.window.UpdateComplete(), memory);
    }

    void Press(const Button& button) {
        const QString name = QString::fromStdString(button.Name);
        program_.drawing.findChild<QAbstractButton*>(name)->click();
    }

    bool SaveWindow(const std::string& path) {
        ribbon_.hide();
        const QPixmap picture = program_.drawing.grab();
        ribbon_.show();
        return picture.save(QString::fromStdString(path), "PNG");
    }

    DemoOptions options_;
    std::unique_ptr<DemoController> controller_;
    Program program_;
    QWidget& ribbon_;
    std::optional<Walk> walk_;
};

// The installed programs and those of a build find the sample in the same place beside them.
std::string SampleFile(const char* program) {
    std::error_code failed;
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", failed);
    if (failed) self = program;
    return FromPath(self.parent_path() / "../share/keplin/QDX-470-sample.HEX");
}

}  // namespace
}  // namespace keplin

int main(int argc, char** argv) {
    int exitCode = 0;
    auto options = keplin::ReadDemoOptions(argc, argv, keplin::SampleFile(argv[0]), exitCode);
    if (!options) return exitCode;
    const auto application = keplin::OpenDisplay(argc, argv, "keplin-demo");
    try {
        return keplin::Demonstration(std::move(*options)).Run();
    } catch (const std::exception& error) {
        std::cerr << "keplin-demo: " << error.what() << "\n";
        return 2;
    }
}
