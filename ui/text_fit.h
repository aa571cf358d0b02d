// Which font the window's texts are written in: the labels are as narrow as the design has them, so
// the font follows from what fits.
#pragma once

#include <map>
#include <tuple>
#include <vector>

#include "ui/scale.h"
#include "ui/text_measure.h"

namespace keplin {

// In pixels from the label's top-left corner.
struct TextRoom {
    Rect<double> area;                  // that the text may fill; it begins at its top
    std::vector<Rect<double>> covered;  // by other visible controls
};

class TextFit {
  public:
    // The controls of one window, and the measure, must outlive it. Measures at once to choose the
    // font.
    TextFit(const std::vector<const Control*>& controls, Scale scale, const TextMeasure& measure);

    // Of every text that sets no size of its own: the largest size at which some family fits every
    // label's text, and the first such family; where none does, the desktop's own at the smallest.
    [[nodiscard]] const TextFont& Font() const { return font_; }

    // The font of one label now, made smaller where its text does not fit in the chosen one. May be
    // another one after each change of the label, and when a control of the same container comes or
    // goes.
    [[nodiscard]] TextFont FontOf(const Label& label) const;

    // The part of the label's place that the text may fill, from the label's top-left corner.
    [[nodiscard]] PixelRect AreaOf(const Label& label) const;

  private:
    using Inks = std::vector<Rect<double>>;

    [[nodiscard]] TextFont Choose() const;
    // Among its siblings: a button or bar beside it, the label below it.
    [[nodiscard]] TextRoom RoomOf(const Label& label) const;
    [[nodiscard]] bool EveryTextFits(const TextFont& chosen) const;
    [[nodiscard]] bool Fits(const Label& label, const TextFont& font, const TextRoom& room) const;
    [[nodiscard]] const Inks& InksOf(const Label& label, const TextFont& font, double width) const;

    const std::vector<const Control*>& controls_;
    const Scale scale_;
    const TextMeasure& measure_;
    mutable std::map<std::tuple<std::string, TextFont, Alignment, double>, Inks> known_;
    TextFont font_;
};

}  // namespace keplin
