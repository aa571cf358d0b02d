// What every widget of one window shares: the model around it, the scale and the fonts.
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <string>

#include "ui/qt/text_layout.h"
#include "ui/text_fit.h"

namespace keplin::qt {

struct Look {
    const Form& model;
    const Scale scale;
    const TextLayoutMeasure measure;
    const TextFit fit;
};

// The model's texts are bytes in UTF-8; a byte that is none shows as a replacement character.
inline QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}

inline QColor ToQt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

inline QRect ToQt(const PixelRect& rect) {
    return {rect.left, rect.top, rect.width, rect.height};
}

inline PixelRect FromQt(const QRect& rect) {
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

inline PixelSize FromQt(QSize size) {
    return {size.width(), size.height()};
}

}  // namespace keplin::qt
