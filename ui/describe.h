// Changes of the window as lines of text, for a trace or a protocol.
#pragma once

#include <string>

#include "ui/control.h"

namespace keplin {

// The property and what it is now: lblPrgm.Caption = "All Blocks Erased".
std::string Describe(const Control& control, Aspect aspect);

}  // namespace keplin
