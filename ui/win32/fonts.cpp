#include "ui/win32/fonts.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/win32/utf16.h"

namespace keplin::win32 {
namespace {

constexpr double kPointsPerInch = 72;

struct Line {
    std::wstring_view text;
    PixelRect place;  // from the top-left corner of the column
};

// Its width, and the height of a line.
PixelSize SizeOf(HDC context, std::wstring_view text) {
    SIZE size{};
    GetTextExtentPoint32W(context, text.data(), static_cast<int>(text.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

// How many characters of the text the next line takes, blanks at its end included.
std::size_t LineLength(HDC context, std::wstring_view text, int width) {
    int fitting = 0;
    SIZE size{};
    GetTextExtentExPointW(context, text.data(), static_cast<int>(text.size()), width, &fitting,
                          nullptr, &size);
    const auto fit = static_cast<std::size_t>(fitting);
    if (fit >= text.size()) return text.size();
    // A blank may run over the end; a word may not, unless it is the only one.
    std::size_t end = text[fit] == L' ' ? fit : text.find_last_of(L' ', fit);
    if (end == std::wstring_view::npos) end = std::min(text.find(L' ', fit), text.size());
    return std::min(text.find_first_not_of(L' ', end), text.size());
}

// With the font that is chosen into the context.
std::vector<Line> LayOut(HDC context, std::wstring_view text, Alignment alignment, int width) {
    std::vector<Line> lines;
    while (!text.empty()) {
        const std::size_t length = LineLength(context, text, width);
        std::wstring_view line = text.substr(0, length);
        text.remove_prefix(length);
        if (!text.empty()) line = line.substr(0, line.find_last_not_of(L' ') + 1);
        const auto [wide, high] = SizeOf(context, line);
        const int left = alignment == Alignment::Centre ? (width - wide) / 2 : 0;
        lines.push_back({line, {left, static_cast<int>(lines.size()) * high, wide, high}});
    }
    return lines;
}

// What of the line is blackened; the whole of it in a font that has no outlines.
Rect<double> InkOf(HDC context, const Line& line) {
    constexpr MAT2 kAsItIs{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    const int base = line.place.top + static_cast<int>(metrics.tmAscent);
    int top = line.place.Bottom();
    int bottom = line.place.top;
    for (const wchar_t letter : line.text) {
        GLYPHMETRICS glyph{};
        if (letter == L' ') continue;
        if (GetGlyphOutlineW(context, letter, GGO_METRICS, &glyph, 0, nullptr, &kAsItIs) ==
            GDI_ERROR) {
            return Exactly(line.place);
        }
        const int above = base - static_cast<int>(glyph.gmptGlyphOrigin.y);
        top = std::min(top, above);
        bottom = std::max(bottom, above + static_cast<int>(glyph.gmBlackBoxY));
    }
    return Exactly(PixelRect{line.place.left, top, line.place.width, std::max(bottom - top, 0)});
}

}  // namespace

Fonts::Fonts(double dpi) : dpi_(dpi), context_(CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr)) {}

HFONT Fonts::Get(const TextFont& font) const {
    const auto [made, isNew] = made_.try_emplace(font);
    if (isNew) {
        const long height = -std::lround(font.points * dpi_ / kPointsPerInch);
        made->second.reset(CreateFontW(
            static_cast<int>(height), 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
            DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
            DEFAULT_PITCH | FF_DONTCARE, ToWide(font.family).c_str()));
    }
    return made->second.get();
}

void Fonts::DrawWrapped(HDC context, const std::string& text, const TextFont& font,
                        Alignment alignment, const PixelRect& area) const {
    const Chosen chosen(context, Get(font));
    const std::wstring wide = ToWide(text);
    SetBkMode(context, TRANSPARENT);
    for (const Line& line : LayOut(context, wide, alignment, area.width)) {
        TextOutW(context, area.left + line.place.left, area.top + line.place.top, line.text.data(),
                 static_cast<int>(line.text.size()));
    }
}

PixelSize Fonts::LineSize(const std::string& text, const TextFont& font) const {
    const Chosen chosen(context_.get(), Get(font));
    return SizeOf(context_.get(), ToWide(text));
}

bool Fonts::HasFamily(const std::string& family) const {
    const auto note = [](const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
        *reinterpret_cast<bool*>(found) = true;
        return 0;
    };
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    ToWide(family).copy(wanted.lfFaceName, LF_FACESIZE - 1);
    bool found = false;
    EnumFontFamiliesExW(context_.get(), &wanted, note, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

std::string Fonts::OwnFamily() const {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return ToUtf8(std::begin(metrics.lfMessageFont.lfFaceName));
}

std::vector<Rect<double>> Fonts::LineInks(const std::string& text, const TextFont& font,
                                          Alignment alignment, double width) const {
    const Chosen chosen(context_.get(), Get(font));
    const std::wstring wide = ToWide(text);
    std::vector<Rect<double>> inks;
    for (const Line& line : LayOut(context_.get(), wide, alignment, static_cast<int>(width)))
        inks.push_back(InkOf(context_.get(), line));
    return inks;
}

}  // namespace keplin::win32
