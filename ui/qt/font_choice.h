// Which font the window's texts are written in: the labels are as narrow as the design has them,
// so the font follows from what fits.
#pragma once

#include <QFont>

#include "ui/qt/look.h"

namespace keplin::qt {

// The largest size at which some family fits every label's text, and the first such family. The
// look's own font is not consulted.
QFont ChooseFont(const Look& look);

// The font of one label, made smaller where its text does not fit in the chosen one.
QFont FontOf(const Label& label, const Look& look);

}  // namespace keplin::qt
