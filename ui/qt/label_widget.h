// A label: a text that wraps, from the top of its place.
#pragma once

#include <QLabel>

#include "ui/qt/drawn.h"

namespace keplin::qt {

class LabelWidget final : public QLabel, public Drawn {
  public:
    LabelWidget(const Label& label, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;
    void Refit() override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QColor TextColour() const;

    const Label& label_;
    const Look& look_;
};

}  // namespace keplin::qt
