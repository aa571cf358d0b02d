// Which texts of a window are not whole: each is drawn anew with its widget's font, by Qt's own
// means, and the ink compared with the room that the widget has and with what it paints.
#pragma once

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace keplin::test {

// The pixels of the image that a text has darkened.
inline QRect InkIn(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

// What a label's text darkens, from the label's corner, were there room all around.
inline QRect InkOf(const QLabel& label) {
    constexpr int kSpace = 200;
    QImage image(label.size() + QSize(kSpace, kSpace), QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(label.font());
    const auto flags = static_cast<int>(label.alignment() & Qt::AlignHorizontal_Mask);
    painter.drawText(QRect(0, 0, label.width(), image.height()), flags | Qt::TextWordWrap,
                     label.text());
    return InkIn(image);
}

// What the label darkens within its outermost pixels, which may be a border.
inline QRect PaintedInk(QLabel& label) {
    QImage image(label.size(), QImage::Format_Grayscale8);
    image.fill(Qt::white);
    label.render(&image, {}, {}, {});
    return InkIn(image.copy(label.rect().adjusted(1, 1, -1, -1))).translated(1, 1);
}

// But for its place in the line, and what rounding each line adds up to.
inline bool IsAlike(const QRect& ink, const QRect& other) {
    const auto isNear = [](int a, int b) { return std::abs(a - b) <= 4; };
    return isNear(ink.top(), other.top()) && isNear(ink.bottom(), other.bottom()) &&
           isNear(ink.width(), other.width());
}

// A widget that lies above the label and hides some of its text.
inline bool IsCovered(const QLabel& label, const QRect& ink) {
    const QObjectList siblings = label.parentWidget()->children();
    const auto covers = [&](QObject* object) {
        const auto* other = qobject_cast<QWidget*>(object);
        return other != nullptr && other->isVisible() &&
               other->geometry().translated(-label.pos()).intersects(ink);
    };
    return std::any_of(siblings.begin() + siblings.indexOf(&label) + 1, siblings.end(), covers);
}

// A text of one line that is cut off has ink in the last column that it may fill.
inline bool IsCutOff(QLabel& label) {
    const QRect inside = label.contentsRect();
    const QImage column = label.grab({inside.topRight(), inside.bottomRight()}).toImage();
    for (int y = 1; y < column.height(); ++y) {
        if (column.pixel(0, y) != column.pixel(0, 0)) return true;
    }
    return false;
}

inline bool IsWhole(QLabel& label) {
    if (label.frameShape() != QFrame::NoFrame) {  // a panel, which has one line
        return !IsCutOff(label) && label.fontMetrics().height() <= label.contentsRect().height();
    }
    const QRect ink = InkOf(label);
    return label.rect().contains(ink) && !IsCovered(label, ink) && IsAlike(PaintedInk(label), ink);
}

// The names of the visible labels, panels and buttons whose text is cut off or covered now.
inline std::vector<std::string> TextsThatDoNotFit(const QWidget& window) {
    std::vector<std::string> names;
    for (QLabel* label : window.findChildren<QLabel*>()) {
        const bool shown = label->isVisible() && !label->text().isEmpty();
        if (shown && !IsWhole(*label)) names.push_back(label->objectName().toStdString());
    }
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        const int room = button->width() - 8;
        const bool whole = button->fontMetrics().horizontalAdvance(button->text()) <= room;
        if (button->isVisible() && !whole) names.push_back(button->objectName().toStdString());
    }
    return names;
}

}  // namespace keplin::test
