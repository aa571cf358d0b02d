// What only a toolkit knows of texts: which fonts there are and how large they write.
#pragma once

#include <compare>
#include <string>
#include <tuple>
#include <vector>

#include "ui/controls.h"
#include "ui/rect.h"

namespace keplin {

struct TextFont {
    std::string family;
    double points = 0;  // 1/72 inch at the desktop's dots per inch; quarters and eighths occur
    bool bold = false;
    friend bool operator==(const TextFont&, const TextFont&) = default;
    friend bool operator<(const TextFont& one, const TextFont& other) {
        return std::tie(one.family, one.points, one.bold) <
               std::tie(other.family, other.points, other.bold);
    }
};

// Every text is in UTF-8; a byte that is none is measured as what is shown in its place. Widths are
// in the pixels in which controls are placed, and the drawing writes by the same layout.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;

    // The system has the family, under this name or under another one. Is asked for one family
    // after the other until one fits.
    [[nodiscard]] virtual bool HasFamily(const std::string& family) const = 0;

    // The family in which the desktop writes by itself.
    [[nodiscard]] virtual std::string OwnFamily() const = 0;
    // It is asked for before all others, and not after them.
    [[nodiscard]] virtual bool OwnFamilyFirst() const { return false; }

    // The text broken between words into lines of at most that width; a word that is wider stands
    // alone on its line. For each line what it really blackens, from the top-left corner of the
    // column on: the blank above its letters does not count.
    [[nodiscard]] virtual std::vector<Rect<double>> LineInks(const std::string& text,
                                                             const TextFont& font,
                                                             Alignment alignment,
                                                             double width) const = 0;
};

}  // namespace keplin
