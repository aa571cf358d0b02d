#include "app/application.h"

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
    std::cerr << QCoreApplication::applicationName().toStdString()
              << ": there is no display to show the window on; start it on a desktop (one with "
                 "Wayland alone needs the package qt6-wayland)"
              << std::endl;
    std::_Exit(2);
}

}  // namespace

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv, const char* program) {
    QCoreApplication::setApplicationName(program);
    QGuiApplication::setDesktopFileName(program);
    qInstallMessageHandler(HoldBackOrEnd);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(nullptr);
    std::cerr << heldBack;
    return application;
}

}  // namespace keplin
