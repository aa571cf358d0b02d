// Lets a screen reader speak what is new in the window. The news is the accessible description of
// the button with the keyboard focus: read when the focus comes to it, announced while it is there.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "ui/spoken_texts.h"

namespace keplin::qt {

class Speaker : public QObject {
  public:
    Speaker(QWidget& window, const ISPMain& model);

    // The widgets have followed a change of the model. It is announced at the next round of events,
    // together with what else changes until then. Nothing happens while no screen reader is there.
    void Changed(const Control& control, Aspect aspect);

  private:
    void Speak();
    void FollowFocus(QWidget* now);
    void Describe(const std::string& news);

    QWidget& window_;
    SpokenTexts texts_;
    // Where a screen reader has the focus: it stays there while the window itself has it.
    QPointer<QWidget> focused_;
    bool due_ = false;
};

}  // namespace keplin::qt
