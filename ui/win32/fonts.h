// The system's fonts: which there are, how large they write, and the writing itself.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "ui/text_measure.h"
#include "ui/win32/gdi.h"

namespace keplin::win32 {

// At one number of dots per inch.
class Fonts : public TextMeasure {
  public:
    explicit Fonts(double dpi);

    // Lives as long as this.
    [[nodiscard]] HFONT Get(const TextFont& font) const;

    // Draws the text in the chosen text colour, wrapped as it is measured, from the area's top.
    void DrawWrapped(HDC context, const std::string& text, const TextFont& font,
                     Alignment alignment, const PixelRect& area) const;

    // The width of the text on one line, and the height of that line.
    [[nodiscard]] PixelSize LineSize(const std::string& text, const TextFont& font) const;

    [[nodiscard]] bool HasFamily(const std::string& family) const override;
    [[nodiscard]] std::string OwnFamily() const override;
    [[nodiscard]] bool OwnFamilyFirst() const override { return true; }
    [[nodiscard]] std::vector<Rect<double>> LineInks(const std::string& text, const TextFont& font,
                                                     Alignment alignment,
                                                     double width) const override;

  private:
    const double dpi_;
    const MemoryContext context_;  // of the screen, to measure with
    mutable std::map<TextFont, Gdi<HFONT>> made_;
};

}  // namespace keplin::win32
