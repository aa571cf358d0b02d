// The key that opens the manual.
#pragma once

#include <QWidget>

namespace keplin {

// From now on F1 in the window opens the installed manual in the desktop's browser, without waiting
// for it; where either is missing, nothing happens.
void OpenManualOnF1(QWidget& window);

}  // namespace keplin
