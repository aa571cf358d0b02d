// The pictures that the program carries in its resources.
#pragma once

#include <windows.h>

#include "ui/controls.h"
#include "ui/rect.h"

namespace keplin::win32 {

// From the top-left corner, in that size.
void DrawImage(HDC context, Picture::Image image, PixelSize size);

// The program's icon, as wide as one of these two of the system: SM_CXICON or SM_CXSMICON. The
// system keeps it.
HICON ProgramIcon(int size);

}  // namespace keplin::win32
