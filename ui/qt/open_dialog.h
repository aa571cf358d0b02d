// The dialog in which the technician chooses the update file.
#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "platform/desktop.h"

namespace keplin::qt {

// Shows the dialog over the window and waits for it. The full path chosen or typed, which need not
// exist; nothing when it was cancelled.
std::optional<std::string> AskForFile(QWidget& window, const OpenFileRequest& request);

}  // namespace keplin::qt
