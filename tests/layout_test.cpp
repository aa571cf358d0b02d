// The window's design, where things stand in it and what fits, whatever measures and draws it.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/support/data.h"
#include "ui/accessible_text.h"
#include "ui/isp_main.h"
#include "ui/page_look.h"
#include "ui/status_panels.h"
#include "ui/text_fit.h"
#include "ui/throttle.h"

namespace keplin::test {
namespace {

std::ostream& operator<<(std::ostream& out, const Colour& colour) {
    return out << int{colour.red} << "," << int{colour.green} << "," << int{colour.blue};
}

const char* Word(Alignment alignment) {
    return alignment == Alignment::Centre ? ", centred" : "";
}

// What a kind of control has beside its place.
class Looks : public ControlVisitor {
  public:
    void Visit(const Form& form) override { Text << "window \"" << form.Caption.Get() << '"'; }
    void Visit(const Page& page) override { Text << "page " << page.Background; }
    void Visit(const Frame& frame) override {
        Text << "frame \"" << frame.Caption.Get() << "\", " << frame.Background;
    }
    void Visit(const Label& label) override {
        const TextStyle& style = label.Style;
        Text << "label \"" << label.Caption.Get() << '"' << Word(style.alignment);
        if (style.colour) Text << ", in " << *style.colour;
        if (style.background) Text << ", on " << *style.background;
        if (style.border) Text << ", border";
        if (label.Bold) Text << ", bold";
        if (style.points > 0) Text << ", " << style.points << " pt";
    }
    void Visit(const Button& button) override {
        Text << "button \"" << button.Caption.Get() << "\", tab " << button.TabIndex;
    }
    void Visit(const Picture& picture) override {
        Text << (picture.Shows == Picture::Image::Icon ? "icon" : "getting-started picture");
    }
    void Visit(const Shape& shape) override {
        Text << "shape";
        if (shape.Fill) Text << " filled " << *shape.Fill;
    }
    void Visit(const ProgressBar& bar) override {
        Text << "progress bar from " << bar.Min << " to " << bar.Max << ", now " << bar.Value;
    }
    void Visit(const StatusBar& bar) override {
        Text << "status bar, " << bar.AboveBottom << " above the bottom, " << bar.PanelCount()
             << " panels";
    }
    void Visit(const Panel& panel) override {
        const bool share = panel.Sizing == PanelSizing::Share;
        Text << "panel \"" << panel.Text.Get() << "\", at least " << panel.MinimumWidth << ", "
             << (share ? "share" : "as its text") << Word(panel.TextAlignment);
    }
    void Visit(const Timer& timer) override { Text << "timer " << timer.Interval << " ms"; }

    std::ostringstream Text;
};

std::string LineOf(const Control& control) {
    Looks looks;
    std::ostringstream& line = looks.Text;
    line << control.Name;
    if (control.Container != nullptr) line << " in " << control.Container->Name;
    line << ": ";
    control.Accept(looks);
    line << " at " << control.Left << " " << control.Top << " " << control.Width << " "
         << control.Height;
    if (!control.Visible) line << ", hidden";
    if (!control.Enabled) line << ", disabled";
    const AccessibleText heard = AccessibleTextOf(control);
    if (heard.name.empty()) line << ", not heard";
    for (const std::string& text : {heard.name, heard.description, heard.value}) {
        const std::string quoted = '"' + text + '"';
        if (!text.empty() && line.str().find(quoted) == std::string::npos)
            line << ", heard " << quoted;
    }
    return line.str() + "\n";
}

TEST(Design, EveryControlIsAsDesigned) {
    const ISPMain window;
    std::string lines = LineOf(window);
    for (const Control* control : window.Controls())
        lines += LineOf(*control);
    EXPECT_EQ(lines, Data("design.txt"));
    EXPECT_FALSE(window.MovingLeft);
}

// Every letter is as wide as half of the font's height in pixels at 96 dpi, but in one family.
class Letters : public TextMeasure {
  public:
    explicit Letters(std::vector<std::string> families) : families_(std::move(families)) {}

    [[nodiscard]] bool HasFamily(const std::string& family) const override {
        return std::ranges::count(families_, family) > 0;
    }
    [[nodiscard]] std::string OwnFamily() const override { return "Own"; }
    [[nodiscard]] std::vector<Rect<double>> LineInks(const std::string& text, const TextFont& font,
                                                     Alignment, double width) const override {
        const double high = font.points / 0.75;
        const double letter = high * (font.family == "Wide" ? 0.8 : 0.45);
        const auto inLine = static_cast<std::size_t>(width / letter);
        std::vector<Rect<double>> lines;
        for (std::size_t from = 0; from < text.size(); from += inLine) {
            const auto letters = std::min(inLine, text.size() - from);
            lines.push_back({0, 1.1 * high * static_cast<double>(lines.size()),
                             letter * static_cast<double>(letters), high});
        }
        return lines;
    }

  private:
    const std::vector<std::string> families_;
};

TEST(TextFit, TakesTheFirstFamilyInWhichEveryTextIsWholeAsLargeAsItCan) {
    const ISPMain window;
    const auto chosen = [&](std::vector<std::string> families) {
        const Letters letters(std::move(families));
        return TextFit(window.Controls(), Scale(96), letters).Font();
    };
    const TextFont narrow = chosen({"DejaVu Sans", "Arial", "Own"});
    EXPECT_EQ(narrow, (TextFont{"Arial", 7.875}));
    EXPECT_EQ(chosen({"Own"}), (TextFont{"Own", narrow.points}));
    EXPECT_EQ(chosen({}), (TextFont{"Own", 4.5}));
}

TEST(TextFit, ALabelWritesSmallerAsLongAsItMust) {
    ISPMain window;
    const Letters letters({"Arial"});
    const TextFit fit(window.Controls(), Scale(96), letters);
    Label& first = window.lblPrg[0];
    first.Caption = std::string(60, 'x');
    const double full = fit.FontOf(first).points;
    EXPECT_EQ(full, fit.Font().points);
    first.Caption = std::string(90, 'x');
    EXPECT_LT(fit.FontOf(first).points, full) << "the button beside it hides a part";
    window.Command1.Visible = false;
    EXPECT_EQ(fit.FontOf(first).points, full);
    first.Bold = true;
    EXPECT_TRUE(fit.FontOf(first).bold);
    EXPECT_EQ(fit.AreaOf(window.lblResults), (PixelRect{3, 1, 283, 15}));
    window.Label10.Caption = std::string(1000, 'x');
    EXPECT_EQ(fit.FontOf(window.Label10).points, 4.5);
}

TEST(Scale, ShowsAllOfTheWindowOnASmallScreen) {
    const ISPMain window;
    const auto fitting = [&](double desktop, PixelSize screen) {
        return FittingDotsPerInch(desktop, screen, window);
    };
    EXPECT_EQ(fitting(144, {1920, 1080}), 144);
    EXPECT_EQ(fitting(96, {4, 600}), 96);
    EXPECT_EQ(fitting(96, {800, 40}), 96);
    const Scale low(fitting(144, {800, 2000}));
    EXPECT_EQ(low.Pixels(window.Width), 796);
    const Scale flat(fitting(144, {2000, 480}));
    EXPECT_EQ(flat.Pixels(kShownHeight - 315), 440);
    EXPECT_EQ(Centred({622, 364}, {100, 20, 1920, 1061}), (PixelRect{749, 369, 622, 364}));
}

TEST(PageLook, AFrameRunsThroughTheMiddleOfItsCaption) {
    const FrameParts parts = PartsOfFrame({529, 177}, {100, 17}, Scale(96));
    EXPECT_EQ(parts.outline, (PixelRect{0, 8, 529, 169}));
    EXPECT_EQ(parts.gap, (PixelRect{6, 0, 104, 17}));
    EXPECT_EQ(parts.caption, (PixelRect{8, 0, 100, 17}));
    EXPECT_EQ(OutlineOn({192, 192, 255}), (Colour{120, 120, 159}));
}

TEST(StatusPanels, ShareTheirBarAndShortenALongPath) {
    ISPMain window;
    window.Height = kShownHeight;
    const Scale scale(96);
    StatusBar& bar = window.StatusBar1;
    const PixelRect place = scale.PlaceAtBottom(bar, window);
    EXPECT_EQ(place, (PixelRect{0, 309, 622, 17}));
    const TextWidth five = [](const std::string& text) { return 5 * int(text.size()); };
    const auto views = [&] {
        return ArrangePanels(bar, {place.width, place.height}, scale, 1, five);
    };
    EXPECT_EQ(views()[1].place, (PixelRect{489, 1, 131, 16}));
    bar.Panels(1).Text = std::string(95, 'x');  // as wide as the room
    EXPECT_EQ(views()[0].text, bar.Panels(1).Text.Get());
    EXPECT_EQ(views()[0].toolTip, "");
    bar.Panels(1).Text = " /" + std::string(95, 'm') + "/UPDATE.HEX";
    const PanelView shown = views()[0];
    EXPECT_EQ(shown.toolTip, bar.Panels(1).Text.Get());
    EXPECT_LE(five(shown.text), shown.place.width - 8);
    EXPECT_TRUE(shown.text.starts_with(" /mm") && shown.text.ends_with("m/UPDATE.HEX"));
    bar.Panels(2).Text = std::string(50, 'x');
    EXPECT_EQ(views()[1].place, (PixelRect{362, 1, 258, 16}));
    bar.Panels(2).Text = std::string(120, 'x');
    EXPECT_EQ(views()[1].place.left, 123) << "the first panel keeps its minimum";
    const auto thirds = ArrangePanels(window.StatusBar2, {622, 17}, scale, 1, five);
    EXPECT_EQ(thirds[2].place, (PixelRect{415, 1, 205, 16}));
}

TEST(StatusPanels, NoCharacterIsCutInTwo) {
    const TextWidth characters = [](const std::string& text) {
        return static_cast<int>(
            std::ranges::count_if(text, [](unsigned char byte) { return (byte & 0xC0) != 0x80; }));
    };
    EXPECT_EQ(ShortenedInMiddle("äöüßÄÖÜ", 5, characters), "äö…ÖÜ");
    EXPECT_EQ(ShortenedInMiddle("a\u0301b\u0301c\u0301d\u0345", 4, characters), "…d\u0345");
    EXPECT_EQ(ShortenedInMiddle("abc", 3, characters), "abc");
    EXPECT_EQ(ShortenedInMiddle("abc", 1, characters), "…");
    EXPECT_EQ(ShortenedInMiddle("abc", 0, characters), "");
    EXPECT_EQ(ShortenedInMiddle("\xFF\xFE\xBFx\xC3", 3, characters), "\xFF…\xC3");
}

TEST(Throttle, ShowsTheFirstChangeAtOnceAndTheRestTogether) {
    using std::chrono::milliseconds;
    Throttle::Moment now{};
    Throttle throttle(milliseconds(34), [&] { return now; });
    EXPECT_EQ(throttle.Changed(), milliseconds(0));
    throttle.WasShown();
    now += milliseconds(10);
    EXPECT_EQ(throttle.Changed(), milliseconds(24));
    EXPECT_EQ(throttle.Changed(), std::nullopt);
    throttle.WasShown();  // out of turn
    EXPECT_EQ(throttle.Changed(), milliseconds(34));
    throttle.WasShown();
    now += milliseconds(40);
    EXPECT_EQ(throttle.Changed(), milliseconds(0));
}

TEST(Throttle, LessThanAPixelIsNoChangeAndTheEndsAlwaysAre) {
    EXPECT_FALSE(CanBeSeen(5019, 5000, 521));
    EXPECT_TRUE(CanBeSeen(5020, 5000, 521) && CanBeSeen(4980, 5000, 521));
    EXPECT_TRUE(CanBeSeen(0, 1, 521) && CanBeSeen(kBarSteps, kBarSteps - 1, 521));
    ISPMain window;
    window.ProgressBar1.Min = 20;
    window.ProgressBar1.Value = 60;
    EXPECT_EQ(StepsDone(window.ProgressBar1), 5000);
    window.ProgressBar1.Max = 0;
    EXPECT_EQ(StepsDone(window.ProgressBar1), 0);
}

}  // namespace
}  // namespace keplin::test
