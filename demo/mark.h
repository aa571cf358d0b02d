// What tells the demonstration from the product at a glance.
#pragma once

#include <QWidget>

namespace keplin {

// Says DEMONSTRATION in the window's title, on its icon, and on a ribbon across its upper right
// corner, which stays on every page. Returns the ribbon, which belongs to the window.
QWidget& MarkAsDemonstration(QWidget& window);

}  // namespace keplin
