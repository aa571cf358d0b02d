#include "ui/qt/text_layout.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>

#include "ui/qt/look.h"

namespace keplin::qt {
namespace {

// Lays the text out in a column `width` wide.
void LayOut(QTextLayout& layout, Alignment alignment, double width) {
    const QTextOption option(alignment == Alignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft);
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

Rect<double> InkOf(const QTextLine& line, const QString& text, const QFont& font) {
    const QString part = text.mid(line.textStart(), line.textLength());
    const QRectF ink = QFontMetricsF(font).tightBoundingRect(part);
    const QRectF natural = line.naturalTextRect();
    return {natural.left(), line.y() + line.ascent() + ink.top(), natural.width(), ink.height()};
}

}  // namespace

TextLayoutMeasure::TextLayoutMeasure() : families_(QFontDatabase::families()) {}

// By another name the system knows a family too, but takes a while to find it.
bool TextLayoutMeasure::HasFamily(const std::string& family) const {
    return families_.contains(ToQt(family)) || QFontDatabase::hasFamily(ToQt(family));
}

std::string TextLayoutMeasure::OwnFamily() const {
    return QApplication::font().family().toStdString();
}

std::vector<Rect<double>> TextLayoutMeasure::LineInks(const std::string& text, const TextFont& font,
                                                      Alignment alignment, double width) const {
    const QString drawn = ToQt(text);
    QTextLayout layout(drawn, ToQt(font));
    LayOut(layout, alignment, width);
    std::vector<Rect<double>> inks;
    inks.reserve(static_cast<std::size_t>(layout.lineCount()));
    for (int i = 0; i < layout.lineCount(); ++i)
        inks.push_back(InkOf(layout.lineAt(i), drawn, layout.font()));
    return inks;
}

QFont ToQt(const TextFont& font) {
    QFont made(ToQt(font.family));
    made.setPointSizeF(font.points);
    made.setBold(font.bold);
    return made;
}

void DrawWrapped(QPainter& painter, const QString& text, Alignment alignment, const QRectF& area) {
    QTextLayout layout(text, painter.font());
    LayOut(layout, alignment, area.width());
    layout.draw(&painter, area.topLeft());
}

}  // namespace keplin::qt
