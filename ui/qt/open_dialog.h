// The dialog in which the technician chooses the update file.
#pragma once

#include <QStringList>
#include <QWidget>
#include <optional>
#include <string>

#include "platform/desktop.h"

namespace keplin::qt {

// Shows the dialog over the window and waits for it. The full path chosen or typed, which need not
// exist; nothing when it was cancelled. In `mounts` desktops make a folder of the user's name, in
// which they mount what is plugged in.
std::optional<std::string> AskForFile(QWidget& window, const OpenFileRequest& request,
                                      const QStringList& mounts = {"/media", "/run/media"});

}  // namespace keplin::qt
