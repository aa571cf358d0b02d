// A status bar along the bottom edge, and its text panels.
#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

#include "ui/qt/drawn.h"
#include "ui/status_panels.h"

namespace keplin::qt {

class StatusBarWidget;

// A text with an inset bevel around it.
class PanelWidget final : public QLabel, public Drawn {
  public:
    PanelWidget(const keplin::Panel& panel, StatusBarWidget& bar);
    void Apply(Aspect aspect) override;

    void Show(const PanelView& view);

  protected:
    void initStyleOption(QStyleOptionFrame* option) const override;

  private:
    const keplin::Panel& panel_;
    StatusBarWidget& bar_;
};

class StatusBarWidget final : public QWidget, public Drawn {
  public:
    StatusBarWidget(const StatusBar& bar, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

    // Makes the widget of the bar's next panel.
    PanelWidget& Add(const Panel& panel);
    // Shares the width among the panels by what they show now.
    void Arrange();

  private:
    const StatusBar& bar_;
    const Look& look_;
    std::vector<PanelWidget*> panels_;
};

}  // namespace keplin::qt
