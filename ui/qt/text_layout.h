// Texts as Qt lays them out: the measuring of them and the drawing, both from the same layout.
#pragma once

#include <QFont>
#include <QPainter>
#include <QStringList>

#include "ui/text_measure.h"

namespace keplin::qt {

class TextLayoutMeasure final : public TextMeasure {
  public:
    // Needs a QApplication.
    TextLayoutMeasure();

    [[nodiscard]] bool HasFamily(const std::string& family) const override;
    [[nodiscard]] std::string OwnFamily() const override;
    [[nodiscard]] std::vector<Rect<double>> LineInks(const std::string& text, const TextFont& font,
                                                     Alignment alignment,
                                                     double width) const override;

  private:
    const QStringList families_;
};

QFont ToQt(const TextFont& font);

// Draws the text with the painter's font and pen: wrapped, from the top of the area.
void DrawWrapped(QPainter& painter, const QString& text, Alignment alignment, const QRectF& area);

}  // namespace keplin::qt
