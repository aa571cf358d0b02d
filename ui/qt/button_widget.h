// A push button, which takes no press that was not meant for it.
#pragma once

#include <QElapsedTimer>
#include <QPushButton>

#include "ui/qt/drawn.h"
#include "ui/qt/focus_keeper.h"

namespace keplin::qt {

class ButtonWidget final : public QPushButton, public Drawn {
  public:
    ButtonWidget(const Button& button, const Look& look, FocusKeeper& focus, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    void ApplyCaption();
    // It could not be pressed a moment ago. A press that comes now was meant for what stood there
    // before: the second of a double press, or one that waited for a pause of the program to end.
    [[nodiscard]] bool CameJustNow() const;

    const Button& button_;
    const Look& look_;
    QElapsedTimer sinceReady_;  // since it was shown or enabled
};

}  // namespace keplin::qt
