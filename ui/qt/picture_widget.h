// A picture drawn from its vector source, sharp at every magnification.
#pragma once

#include <QIcon>
#include <QLabel>

#include "ui/qt/drawn.h"

namespace keplin::qt {

class PictureWidget final : public QLabel, public Drawn {
  public:
    PictureWidget(const Picture& picture, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // For the magnification of the screen that the window is on.
    void Render();

    const Picture& picture_;
    const Look& look_;
};

// The program's icon, for the title bar and the task switcher.
QIcon ProgramIcon();

}  // namespace keplin::qt
