// What every widget of one window shares: the model around it, the scale and the font.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>
#include <vector>

#include "ui/controls.h"
#include "ui/qt/scale.h"

namespace keplin::qt {

struct Look {
    const Form& form;
    const std::vector<Control*>& controls;
    Scale scale;
    QFont font;  // of every text that sets no size of its own
};

// The model's texts are bytes in UTF-8; a byte that is none shows as a replacement character.
inline QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}

inline QColor ToQt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

}  // namespace keplin::qt
