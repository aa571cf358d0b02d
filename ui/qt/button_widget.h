// A push button, which takes no press that was not meant for it.
#pragma once

#include <QPushButton>

#include "ui/follower.h"
#include "ui/qt/drawn.h"

namespace keplin::qt {

class ButtonWidget final : public QPushButton, public Drawn {
  public:
    ButtonWidget(const Button& button, const Look& look, Follower& follower, QWidget* parent);
    void Apply(Aspect aspect) override;

    [[nodiscard]] const Button& Model() const { return button_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    void ApplyCaption();

    const Button& button_;
    const Look& look_;
    Follower& follower_;
};

}  // namespace keplin::qt
