// Whether a text fits where its label stands, and the drawing of it, both from the same layout.
#pragma once

#include <QPainter>
#include <QRectF>
#include <vector>

#include "ui/qt/look.h"

namespace keplin::qt {

// In pixels from the label's top-left corner.
struct TextRoom {
    QRectF area;                  // that the text may fill
    std::vector<QRectF> covered;  // by other visible controls
};

// The room of a label among its siblings: a button or bar beside it, the label below it.
TextRoom RoomOf(const Label& label, const Look& look);

// Every line of the text, wrapped at the area's width, lies inside the room.
bool Fits(const QString& text, const QFont& font, Alignment alignment, const TextRoom& room);

// Draws the text with the painter's font and pen: wrapped, from the top of the area.
void DrawWrapped(QPainter& painter, const QString& text, Alignment alignment, const QRectF& area);

}  // namespace keplin::qt
