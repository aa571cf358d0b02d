#include "ui/qt/text_room.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <map>
#include <tuple>

namespace keplin::qt {
namespace {

// Twips that a border takes of its label: the line, and beside the text some room.
constexpr float kBorder = 15;
constexpr float kBorderAndRoom = 45;

// Lays the text out in a column `width` wide.
void LayOut(QTextLayout& layout, Alignment alignment, double width) {
    QTextOption option(alignment == Alignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    double top = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, top});
        top += line.height();
    }
    layout.endLayout();
}

// What a line really blackens from top to bottom; the blank above its letters does not count.
QRectF InkOf(const QTextLine& line, const QString& text, const QFont& font) {
    const QString part = text.mid(line.textStart(), line.textLength());
    const QRectF ink = QFontMetricsF(font).tightBoundingRect(part);
    const QRectF natural = line.naturalTextRect();
    return {natural.left(), line.y() + line.ascent() + ink.top(), natural.width(), ink.height()};
}

using Inks = std::vector<QRectF>;

// Of all lines of a text, from the top-left corner of its column.
Inks MeasureInks(const QString& text, const QFont& font, Alignment alignment, double width) {
    QTextLayout layout(text, font);
    LayOut(layout, alignment, width);
    Inks inks;
    for (int i = 0; i < layout.lineCount(); ++i)
        inks.push_back(InkOf(layout.lineAt(i), text, font));
    return inks;
}

// The same from memory: a window asks again and again, to choose its font, for each label, and
// whenever a neighbour comes or goes.
const Inks& InksOf(const QString& text, const QFont& font, Alignment alignment, double width) {
    constexpr std::size_t kMost = 200;  // several times the texts of a window
    static std::map<std::tuple<QString, QString, Alignment, double>, Inks> known;
    if (known.size() >= kMost) known.clear();
    const auto [found, isNew] = known.try_emplace({text, font.key(), alignment, width});
    if (isNew) found->second = MeasureInks(text, font, alignment, width);
    return found->second;
}

bool Covers(const Control& sibling, const Control& label) {
    return &sibling != &label && sibling.Visible && sibling.Container == label.Container;
}

}  // namespace

TextRoom RoomOf(const Label& label, const Look& look) {
    const QRect place = look.scale.PlaceOf(label);
    TextRoom room{QRectF(QPointF(0, 0), place.size()), {}};
    if (label.Style.border) {
        const int above = look.scale.Pixels(kBorder);
        const int beside = look.scale.Pixels(kBorderAndRoom);
        room.area.adjust(beside, above, -beside, -above);
    }
    // A later control lies above an earlier one.
    const auto self = std::find(look.controls.begin(), look.controls.end(), &label);
    for (auto it = self; it != look.controls.end(); ++it) {
        if (!Covers(**it, label)) continue;
        const QRect other = look.scale.PlaceOf(**it);
        if (other.intersects(place)) room.covered.emplace_back(other.translated(-place.topLeft()));
    }
    return room;
}

bool Fits(const QString& text, const QFont& font, Alignment alignment, const TextRoom& room) {
    if (text.isEmpty()) return true;
    const Inks& inks = InksOf(text, font, alignment, room.area.width());
    return std::all_of(inks.begin(), inks.end(), [&](const QRectF& fromColumn) {
        const QRectF ink = fromColumn.translated(room.area.topLeft());
        const auto hides = [&](const QRectF& cover) { return cover.intersects(ink); };
        return room.area.contains(ink) &&
               std::none_of(room.covered.begin(), room.covered.end(), hides);
    });
}

void DrawWrapped(QPainter& painter, const QString& text, Alignment alignment, const QRectF& area) {
    QTextLayout layout(text, painter.font());
    LayOut(layout, alignment, area.width());
    layout.draw(&painter, area.topLeft());
}

}  // namespace keplin::qt
