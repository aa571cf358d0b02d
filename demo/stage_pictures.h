// Pictures of the window, one for each stage of an update, numbered in their order.
#pragma once

#include <functional>
#include <string>

#include "ui/isp_main.h"

namespace keplin {

class StagePictures : public Observer {
  public:
    // `save` writes the window as the product has it, without the mark of the demonstration, to
    // that file, as PNG; false: it could not. An empty `folder`: takes none.
    using SaveWindow = std::function<bool(const std::string& path)>;
    StagePictures(ISPMain& model, SaveWindow save, std::string folder);

    // Saves what the window shows now as NN-name.png; blanks and signs in the name become "-".
    void Take(std::string_view name);

    // Takes a picture when the change begins a stage: a text of the port search or of the update,
    // the middle of the programming.
    void Changed(const Control& control, const PropertyBase& property) override;

  private:
    const ISPMain& model_;
    const SaveWindow save_;
    const std::string folder_;
    int count_ = 0;
    bool middleTaken_ = false;
    Observation observing_;
};

}  // namespace keplin
