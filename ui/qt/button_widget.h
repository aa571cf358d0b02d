// A push button.
#pragma once

#include <QPushButton>

#include "ui/qt/drawn.h"
#include "ui/qt/focus_keeper.h"

namespace keplin::qt {

class ButtonWidget final : public QPushButton, public Drawn {
  public:
    ButtonWidget(const Button& button, const Look& look, FocusKeeper& focus, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    void ApplyCaption();

    const Button& button_;
    const Look& look_;
    const FocusKeeper& focus_;
};

}  // namespace keplin::qt
