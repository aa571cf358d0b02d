#include "ui/isp_main.h"

#include <memory>

namespace keplin {
namespace {

constexpr Colour kPageBlue{192, 192, 255};
constexpr Colour kResultYellow{255, 255, 192};
constexpr Colour kWarningRed{255, 0, 0};
constexpr Colour kBlockBlue{0, 0, 255};

constexpr float kWidth = 9330;
constexpr float kDesignHeight = 8490 + 270 + 45;  // the client area of the design and its frame
constexpr float kStatusBarHeight = 255;

constexpr TextStyle kCentred{.alignment = Alignment::Centre};
constexpr TextStyle kMaker{.alignment = Alignment::Centre, .bold = true, .points = 9.75F};
constexpr TextStyle kWarning{.colour = kWarningRed};
constexpr TextStyle kResult{
    .background = kResultYellow, .border = true, .description = "Result of the port test"};
constexpr TextStyle kHeadline{.description = "What to do on this page"};
constexpr TextStyle kStage{.alignment = Alignment::Centre, .description = "Stage of the update"};

}  // namespace

ISPMain::ISPMain()
    : Form("ISPMain", "  Keplin For QDX-470", kWidth, kDesignHeight),
      Label7(*this, nullptr, "Label7", "Velmora, Inc.", {120, 0, 9015, 375}, kMaker),
      Label8(*this, nullptr, "Label8", "QDX-470 ISP  (In System Programming)",
             {120, 240, 9015, 255}, kCentred),
      Label9(*this, nullptr, "Label9", "Version 1.00", {120, 480, 9015, 255}, kCentred),
      Image1(*this, nullptr, "Image1", Picture::Image::Icon, "Icon of this program",
             {8640, 120, 480, 480}),
      PicGettingStarted(*this, "PicGettingStarted", {240, 4560, 8415, 2895}, kPageBlue),
      PicSetup(*this, "PicSetup", {120, 840, 8415, 2895}, kPageBlue),
      PicProgram(*this, "PicProgram", {240, 4560, 8415, 2895}, kPageBlue),
      Shape1(*this, "Shape1", {120, 3960, 5175, 255}, std::nullopt),
      Shape2(*this, "Shape2", {120, 3960, 135, 255}, kBlockBlue),
      cmdExit(*this, nullptr, "cmdExit", "Close", {7200, 3960, 1335, 375}, 0),
      StatusBar1(*this, "StatusBar1", kStatusBarHeight, 2 * kStatusBarHeight),
      StatusBar2(*this, "StatusBar2", kStatusBarHeight, kStatusBarHeight),
      Timer1(*this, "Timer1", 2),

      Frame3(*this, PicGettingStarted, "Frame3", "QDX-470 Getting Started", {120, 120, 7935, 2655},
             kPageBlue),
      LblGetStarted0(*this, &Frame3, "LblGetStarted(0)",
                     "Connect the QDX-470 serial port (J4) to your computer serial port.  Also "
                     "connect a +12V power source to J3 but do not apply power as yet.",
                     {120, 600, 2775, 1095}),
      Image2(*this, &Frame3, "Image2", Picture::Image::GettingStarted,
             "The controller with its power connector J3, its serial connector J4, cabled to the "
             "computer, and its ISP push-button",
             {3240, 360, 4380, 1575}),
      LblGetStarted4(*this, &Frame3, "LblGetStarted(4)", "When ready, click on the NEXT button.",
                     {120, 2280, 7695, 255}, kCentred),
      Next_1(*this, &Frame3, "Next_1", "NEXT --->", {6600, 2160, 1215, 375}, 1),

      Frame1(*this, PicSetup, "Frame1", "Setup Procedure", {120, 120, 7935, 2655}, kPageBlue),
      Label1(*this, &Frame1, "Label1",
             "1. While pressing in the ISP push-button switch located on the QDX-470, apply power.",
             {120, 360, 6735, 375}),
      Label2(*this, &Frame1, "Label2",
             "2. Click on the Port Test button below to verify a serial connection has been made.",
             {120, 600, 6615, 375}),
      Label3(*this, &Frame1, "Label3",
             "3. If port connection is verified, click the NEXT button to load the update file.",
             {120, 840, 6735, 375}),
      Label4(*this, &Frame1, "Label4",
             "If a port connection can not be established, recheck all cables and try again.   "
             "Note: It will be necessary",
             {120, 1200, 7695, 255}),
      Label5(*this, &Frame1, "Label5",
             "to  reset the QDX-470 into the ISP mode by repeating the above steps.",
             {120, 1440, 7695, 255}),
      cmdPortTest(*this, &Frame1, "cmdPortTest", "Port Test", {360, 2160, 1455, 375}, 3),
      lblResults(*this, &Frame1, "lblResults", "", {2040, 2280, 4335, 255}, kResult),
      Next_2(*this, &Frame1, "Next_2", "NEXT --->", {6600, 2160, 1215, 375}, 2),

      Frame2(*this, PicProgram, "Frame2", "Erase and Programming Device", {120, 120, 7815, 1455},
             kPageBlue),
      lblPrg{Label(*this, &Frame2, "lblPrg(0)",
                   "1. Verify the File Name listed at the bottom of this program window is "
                   "correct.",
                   {120, 360, 7215, 255}, kHeadline),
             Label(*this, &Frame2, "lblPrg(1)",
                   "2. If OK, click the Update QDX-470 button to begin installing the new "
                   "software.",
                   {120, 600, 7215, 255}),
             Label(*this, &Frame2, "lblPrg(2)",
                   "3. Observe below and verify three \"Blocks\" are erased without any failures.",
                   {120, 840, 7215, 255}),
             Label(*this, &Frame2, "lblPrg(3)",
                   "4. After the erase process, the device programming will begin.",
                   {120, 1080, 7215, 255})},
      Command1(*this, &Frame2, "Command1", "Update QDX-470", {5760, 240, 1815, 375}, 4),
      Label10(*this, &PicProgram, "Label10",
              "Note:  System damage may occur if power is interrupted while programming is in "
              "progress.",
              {120, 1680, 6855, 375}, kWarning),
      lblPrgm(*this, &PicProgram, "lblPrgm", "Programming in Progress", {360, 2040, 7335, 375},
              kStage),
      ProgressBar1(*this, &PicProgram, "ProgressBar1", "Progress of the update",
                   {120, 2280, 7815, 375}) {
    const auto addPanel = [this](StatusBar& bar, const char* name, const char* description,
                                 float minimumWidth, Alignment alignment, PanelSizing sizing) {
        bar.Add(std::make_unique<Panel>(*this, bar, name, description, minimumWidth, alignment,
                                        sizing));
    };
    using enum PanelSizing;
    addPanel(StatusBar1, "StatusBar1.Panels(1)", "Update file", 1840, Alignment::Left, Share);
    addPanel(StatusBar1, "StatusBar1.Panels(2)", "Number of lines", 2000, Alignment::Centre,
             Contents);
    addPanel(StatusBar2, "StatusBar2.Panels(1)", "File size", 1440, Alignment::Left, Share);
    addPanel(StatusBar2, "StatusBar2.Panels(2)", "File date", 1440, Alignment::Centre, Share);
    addPanel(StatusBar2, "StatusBar2.Panels(3)", "Checksum", 1440, Alignment::Centre, Share);
}

ISPMain::Job ISPMain::UnderWay() const {
    if (cmdExit.Enabled) return Job::None;
    return cmdPortTest.Enabled ? Job::Update : Job::PortTest;
}

bool ISPMain::UpdateComplete() const {
    return Visible && Frame2.Shown() && Frame2.Caption.Get() == kUpdateComplete;
}

void Win95Shrivel(Form& xForm) {
    xForm.WindowState = Form::State::Minimised;
}

bool EndsAWait(const ISPMain& window, const Control& control, Aspect aspect) {
    return &control == &window.cmdExit && aspect == Aspect::Enabled &&
           window.UnderWay() == ISPMain::Job::None;
}

void ShowPage(Page& page) {
    page.Left = kShownPageLeft;
    page.Top = kShownPageTop;
    page.Visible = true;
}

}  // namespace keplin
