// The containers: a page, and a frame with a captioned outline.
#pragma once

#include <QGroupBox>
#include <QWidget>

#include "ui/qt/drawn.h"

namespace keplin::qt {

// Keeps its colour whatever the desktop's theme is.
class PageWidget final : public QWidget, public Drawn {
  public:
    PageWidget(const Page& page, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Page& page_;
    const Look& look_;
};

// A group box to the screen reader; painted plainly, so that its inside is the whole place.
class FrameWidget final : public QGroupBox, public Drawn {
  public:
    FrameWidget(const Frame& frame, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Frame& frame_;
    const Look& look_;
};

}  // namespace keplin::qt
