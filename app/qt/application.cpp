#include "app/qt/application.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace keplin {
namespace {

// What Qt said while it looked for a display: of interest only once it found one.
std::string heldBack;

// Qt's own way out would be to abort.
void HoldBackOrEnd(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type != QtFatalMsg) {
        heldBack += qFormatLogMessage(type, context, text).toStdString() + "\n";
        return;
    }
    std::cerr << heldBack << text.toStdString() << "\n"
              << QCoreApplication::applicationName().toStdString()
              << ": there is no display to show the window on; start it on a desktop (one with "
                 "Wayland alone needs the package qt6-wayland)"
              << std::endl;
    std::_Exit(2);
}

// On Wayland, GNOME leaves the frame to the program, and Qt's shows a maximise control that does
// nothing. On X11 the desktop draws it. Left as it is where the technician has chosen.
class FrameOfTheDesktop {
  public:
    FrameOfTheDesktop() : chosen_(qEnvironmentVariableIsSet(kPlatform)) {
        if (!chosen_ && qgetenv("XDG_CURRENT_DESKTOP").toUpper().contains("GNOME")) {
            qputenv(kPlatform, "xcb;wayland");
        }
    }
    // Not for the programs that this one starts.
    ~FrameOfTheDesktop() {
        if (!chosen_) qunsetenv(kPlatform);
    }
    FrameOfTheDesktop(const FrameOfTheDesktop&) = delete;
    FrameOfTheDesktop& operator=(const FrameOfTheDesktop&) = delete;

  private:
    static constexpr const char* kPlatform = "QT_QPA_PLATFORM";
    const bool chosen_;
};

}  // namespace

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv, const char* program) {
    QGuiApplication::setDesktopFileName(program);
    qInstallMessageHandler(HoldBackOrEnd);
    const FrameOfTheDesktop frame;
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(nullptr);
    std::cerr << heldBack;
    return application;
}

}  // namespace keplin
