#include "ui/qt/font_choice.h"

#include <QApplication>
#include <QFontDatabase>
#include <algorithm>
#include <array>

#include "ui/qt/text_room.h"

namespace keplin::qt {
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

QStringList Families() {
    QStringList families(kFamilies.begin(), kFamilies.end());
    return families << QApplication::font().family();
}

QFont Font(const QString& family, double points) {
    QFont font(family);
    font.setPointSizeF(points);
    return font;
}

// Before anything is made smaller.
QFont FullFontOf(const Label& label, const Look& look) {
    QFont font = look.font;
    if (label.Style.points > 0) font.setPointSizeF(static_cast<double>(label.Style.points));
    font.setBold(label.Bold);
    return font;
}

bool FitsIn(const Label& label, const QFont& font, const TextRoom& room) {
    return Fits(ToQt(label.Caption), font, label.Style.alignment, room);
}

// A label with a size of its own does not depend on the choice.
bool EveryTextFits(const Look& look) {
    return std::all_of(look.controls.begin(), look.controls.end(), [&](const Control* control) {
        const auto* label = dynamic_cast<const Label*>(control);
        if (label == nullptr || label->Style.points > 0) return true;
        return FitsIn(*label, FullFontOf(*label, look), RoomOf(*label, look));
    });
}

}  // namespace

// By another name the system knows a family too, but takes a while to find it: asked for last, and
// only when its turn comes.
QFont ChooseFont(const Look& look) {
    Look tried = look;
    const QStringList known = QFontDatabase::families();
    for (int step = 0; kLargest - step * kStep >= kSmallest; ++step) {
        for (const QString& family : Families()) {
            if (!known.contains(family) && !QFontDatabase::hasFamily(family)) continue;
            tried.font = Font(family, kLargest - step * kStep);
            if (EveryTextFits(tried)) return tried.font;
        }
    }
    return tried.font;
}

QFont FontOf(const Label& label, const Look& look) {
    QFont font = FullFontOf(label, look);
    const TextRoom room = RoomOf(label, look);
    while (font.pointSizeF() - kStep >= kSmallest && !FitsIn(label, font, room)) {
        font.setPointSizeF(font.pointSizeF() - kStep);
    }
    return font;
}

}  // namespace keplin::qt
