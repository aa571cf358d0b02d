// Pictures of the window, one for each stage of an update, numbered in their order.
#pragma once

#include <QWidget>
#include <string>

#include "ui/isp_main.h"

namespace keplin {

class StagePictures : public Observer {
  public:
    // Saves into `folder`; an empty one: takes none. The pictures show the window as the product
    // has it, without `ribbon`.
    StagePictures(ISPMain& window, QWidget& drawing, QWidget& ribbon, std::string folder);

    // Saves what the window shows now as NN-name.png; blanks and signs in the name become "-".
    void Take(std::string_view name);

    // Takes a picture when the change begins a stage: a text of the port search or of the update,
    // the middle of the programming.
    void Changed(const Control& control, Aspect aspect) override;

  private:
    const ISPMain& window_;
    QWidget& drawing_;
    QWidget& ribbon_;
    const std::string folder_;
    int count_ = 0;
    bool middleTaken_ = false;
    Observation observing_;
};

}  // namespace keplin
