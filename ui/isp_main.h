// The one window of the program as data: every control under its design name, with the place, the
// size, the colours and the text that it has before anything happens.
#pragma once

#include <array>

#include "platform/desktop.h"
#include "ui/controls.h"

namespace keplin {

// Where a page stands while it is shown, in twips; its design place serves only while it is hidden.
inline constexpr float kShownPageLeft = 120;
inline constexpr float kShownPageTop = 840;

// The window's outer height from the start on, in twips; below it lies only what is never shown.
inline constexpr float kShownHeight = 5460;

// What the programming page is called once it is the completion page.
inline constexpr const char* kUpdateComplete = "Update Complete";

class ISPMain : public Form {
  public:
    ISPMain();

    // What keeps the line busy; while it does, Close cannot be pressed. To be asked at a change of
    // Close, or when nothing changes: Port Test can be pressed again a step before it.
    enum class Job { None, PortTest, Update };
    [[nodiscard]] Job UnderWay() const;

    // The technician sees the completion page: every line that was sent was acknowledged.
    [[nodiscard]] bool UpdateComplete() const;

    // Directly on the window.
    Label Label7;
    Label Label8;
    Label Label9;
    Picture Image1;
    Page PicGettingStarted;
    Page PicSetup;
    Page PicProgram;
    Shape Shape1;  // the activity track
    Shape Shape2;  // the activity block
    Button cmdExit;
    StatusBar StatusBar1;
    StatusBar StatusBar2;
    Timer Timer1;
    OpenFileRequest CommonDialog1;

    // On the getting-started page.
    Frame Frame3;
    Label LblGetStarted0;
    Picture Image2;
    Label LblGetStarted4;
    Button Next_1;

    // On the setup page.
    Frame Frame1;
    Label Label1;
    Label Label2;
    Label Label3;
    Label Label4;
    Label Label5;
    Button cmdPortTest;
    Label lblResults;
    Button Next_2;

    // On the programming page.
    Frame Frame2;
    std::array<Label, 4> lblPrg;  // the instructions
    Button Command1;
    Label Label10;
    Label lblPrgm;  // the stage of the update
    ProgressBar ProgressBar1;

    // The activity block travels to the left.
    bool MovingLeft = false;
};

// Minimises the window.
void Win95Shrivel(Form& xForm);

// The change ended the job that the technician was waiting for.
bool EndsAWait(const ISPMain& model, const Control& control, Aspect aspect);

// Moves a page to the place of the shown page and shows it.
void ShowPage(Page& page);

}  // namespace keplin
