// A push button, which takes no press that was not meant for it.
#pragma once

#include <QPushButton>

#include "ui/press_guard.h"
#include "ui/qt/drawn.h"
#include "ui/qt/focus_keeper.h"

namespace keplin::qt {

class ButtonWidget final : public QPushButton, public Drawn {
  public:
    ButtonWidget(const Button& button, const Look& look, FocusKeeper& focus, PressGuard& guard,
                 QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    void ApplyCaption();

    const Button& button_;
    const Look& look_;
    const PressGuard& guard_;
};

}  // namespace keplin::qt
