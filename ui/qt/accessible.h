// What a screen reader takes the window's own kinds of widgets for.
#pragma once

namespace keplin::qt {

// Takes effect for every widget that a screen reader asks about from then on. May be called more
// than once.
void ServeScreenReaders();

}  // namespace keplin::qt
