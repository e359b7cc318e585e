#include "frame/frmSplash.h"

#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"

namespace quorvanta {

namespace {

constexpr int kSplashTime = 3500; // milliseconds

// A title in two labels, the blue one over the black one and a little beside it.
void buildTitle(toolkit::ControlArray<toolkit::Label>& title, toolkit::Form& form,
                const char* caption, toolkit::Place place) {
    for (int i = 0; i < 2; ++i) {
        auto& label = title.load(
            i, form, caption,
            toolkit::Place{place.Left + 60 * i, place.Top - 15 * i, place.Width, place.Height});
        label.AutoSize = true;
        label.design = {.name = "Arial", .size = 32};
        label.FontBold = true;
        label.ForeColor = i == 0 ? toolkit::kBlack : toolkit::kBlue;
        label.isShadow = i == 0;
    }
}

} // namespace

frmSplash::frmSplash() : FormOf(Kind::TopLevel, "frmSplash", 6600, 3225) {
    KeyPreview = true;
    Borderless = true;
    Caption = kProductTitle;     // seen in task bars alone
    BackColor = toolkit::kWhite; // its picture and its colours are made for a light ground
    img1.Picture = "splash";
    imgLogo.Picture = "quorvanta";
    buildTitle(lblProductName, *this, "App Name", {105, 795, 3180, 765});
    buildTitle(lblZW, *this, kMaker, {930, 0, 3255, 765});
    lblVersion.design = {.name = "Arial", .size = 9.75};
    lblVersion.FontBold = true;
    lblVersion.ForeColor = toolkit::kBlack;
    int top = 2130;
    int i = 0;
    for (const char* line :
         {"The number lottery 6 from 49: plays, rows and bankroll", kCopyright, kSite}) {
        auto& label = lblMaker.load(i++, *this, line, toolkit::Place{105.0, 1.0 * top, 6255, 255});
        label.design = {.name = "Arial", .size = 9};
        label.ForeColor = toolkit::kBlack;
        top += 300;
    }
    Timer1.Enabled = false;
    Timer1.Interval = kSplashTime;
    Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmSplash::Form_Load() {
    CenterForm(*this);
    lblVersion.Caption =
        "Version " + std::to_string(toolkit::App.Major) + "." + std::to_string(toolkit::App.Minor);
    lblProductName(0).Caption = kProductTitle;
    lblProductName(1).Caption = kProductTitle;
    Top = Top - 1500;
    Timer1.Enabled = true;
}

void frmSplash::Timer1_Timer() {
    Unload();
    MDIForm1::the().Show();
}

// A user who presses a key has seen enough: the frame opens at once.
void frmSplash::Form_KeyPress(int& /*KeyAscii*/) {
    Timer1_Timer();
}

} // namespace quorvanta
