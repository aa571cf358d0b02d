#include "ui/text_fit.h"

#include <algorithm>
#include <array>

namespace keplin {
namespace {

// Sizes in points, which follow the dots per inch as the twips do: 11 pixels at 96 dpi at the most,
// by half a pixel down to 6.
constexpr double kPixel = 0.75;
constexpr double kLargest = 11 * kPixel;
constexpr double kSmallest = 6 * kPixel;
constexpr double kStep = kPixel / 2;

// The narrow ones first, then what most systems have; behind them the desktop's own.
constexpr std::array kFamilies = {"Liberation Sans", "Arimo",       "Arial",
                                  "Helvetica",       "Nimbus Sans", "FreeSans",
                                  "Noto Sans",       "Cantarell",   "Open Sans",
                                  "Ubuntu",          "Roboto",      "DejaVu Sans Condensed",
                                  "DejaVu Sans"};

// Twips that a border takes of its label: the line, and beside the text some room.
constexpr float kBorder = 15;
constexpr float kBorderAndRoom = 45;

std::vector<std::string> Families(const TextMeasure& measure) {
    std::vector<std::string> families(kFamilies.begin(), kFamilies.end());
    const auto place = measure.OwnFamilyFirst() ? families.begin() : families.end();
    families.insert(place, measure.OwnFamily());
    return families;
}

// Before anything is made smaller.
TextFont FullFontOf(const Label& label, const TextFont& chosen) {
    const double points = static_cast<double>(label.Style.points);
    return {chosen.family, points > 0 ? points : chosen.points, label.Bold};
}

bool Covers(const Control& sibling, const Control& label) {
    return &sibling != &label && sibling.Visible && sibling.Container == label.Container;
}

}  // namespace

TextFit::TextFit(const std::vector<const Control*>& controls, Scale scale,
                 const TextMeasure& measure)
    : controls_(controls), scale_(scale), measure_(measure), font_(Choose()) {}

// To find a family under another name takes a system a while: each is asked for only when its turn
// comes.
TextFont TextFit::Choose() const {
    constexpr int kSteps = static_cast<int>((kLargest - kSmallest) / kStep);
    for (int step = 0; step <= kSteps; ++step) {
        for (const std::string& family : Families(measure_)) {
            TextFont tried{family, kLargest - step * kStep};
            if (measure_.HasFamily(family) && EveryTextFits(tried)) return tried;
        }
    }
    return {measure_.OwnFamily(), kSmallest};
}

// A label with a size of its own does not depend on the choice.
bool TextFit::EveryTextFits(const TextFont& chosen) const {
    return std::all_of(controls_.begin(), controls_.end(), [&](const Control* control) {
        const auto* label = dynamic_cast<const Label*>(control);
        if (label == nullptr || label->Style.points > 0) return true;
        return Fits(*label, FullFontOf(*label, chosen), RoomOf(*label));
    });
}

TextFont TextFit::FontOf(const Label& label) const {
    TextFont font = FullFontOf(label, font_);
    const TextRoom room = RoomOf(label);
    while (font.points - kStep >= kSmallest && !Fits(label, font, room))
        font.points -= kStep;
    return font;
}

TextRoom TextFit::RoomOf(const Label& label) const {
    const PixelRect place = scale_.PlaceOf(label);
    TextRoom room{Exactly(AreaOf(label)), {}};
    // A later control lies above an earlier one.
    const auto self = std::find(controls_.begin(), controls_.end(), &label);
    for (auto it = self; it != controls_.end(); ++it) {
        if (!Covers(**it, label)) continue;
        const PixelRect other = scale_.PlaceOf(**it).Moved(-place.left, -place.top);
        room.covered.push_back(Exactly(other));
    }
    return room;
}

PixelRect TextFit::AreaOf(const Label& label) const {
    const PixelRect place = scale_.PlaceOf(label);
    const PixelRect whole{0, 0, place.width, place.height};
    if (!label.Style.border) return whole;
    return whole.Inset(scale_.Pixels(kBorderAndRoom), scale_.Pixels(kBorder));
}

bool TextFit::Fits(const Label& label, const TextFont& font, const TextRoom& room) const {
    if (label.Caption.Get().empty()) return true;
    const Inks& inks = InksOf(label, font, room.area.width);
    return std::all_of(inks.begin(), inks.end(), [&](const Rect<double>& fromColumn) {
        const Rect<double> ink = fromColumn.Moved(room.area.left, room.area.top);
        const auto hides = [&](const Rect<double>& cover) { return cover.Intersects(ink); };
        return room.area.Contains(ink) &&
               std::none_of(room.covered.begin(), room.covered.end(), hides);
    });
}

// From memory where it can be: a window asks again and again, to choose its font, for each label,
// and whenever a neighbour comes or goes.
const TextFit::Inks& TextFit::InksOf(const Label& label, const TextFont& font, double width) const {
    constexpr std::size_t kMost = 200;  // several times the texts of a window
    if (known_.size() >= kMost) known_.clear();
    const Alignment alignment = label.Style.alignment;
    const auto [found, isNew] = known_.try_emplace({label.Caption, font, alignment, width});
    if (isNew) found->second = measure_.LineInks(label.Caption, font, alignment, width);
    return found->second;
}

}  // namespace keplin
