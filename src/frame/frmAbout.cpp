#include "frame/frmAbout.h"

#include "common/SystemBuffer.h"
#include "common/Trap.h"
#include "common/cInternet.h"
#include "common/cLocalSettings.h"
#include "frame/Emblem.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"
#include "platform/Platform.h"

namespace quorvanta {

namespace {

constexpr int kTick = 75; // milliseconds

struct TextLine {
    int index;
    const char* text;
    toolkit::Place place;
    int tabIndex;
    double size; // points
    toolkit::Colour colour = toolkit::kBlack;
};

constexpr TextLine kLines[] = {{0, "", {120, 210, 2535, 495}, 1, 21.75},
                               {1, "", {120, 180, 2535, 495}, 2, 21.75, toolkit::kBlue},
                               {2, kMaker, {120, 1305, 2655, 495}, 3, 15.75},
                               {3, kMaker, {135, 1290, 2655, 330}, 4, 15.75, toolkit::kBlue},
                               {5, "Exampleton, United Kingdom", {120, 1725, 2940, 270}, 6, 9.75},
                               {8,
                                "Tel. 01632 960 049, Fax 01632 960 050", // reserved for examples
                                {120, 1980, 3075, 270},
                                12,
                                9.75},
                               {4, kSite, {120, 2220, 3075, 270}, 5, 9.75}};

} // namespace

frmAbout::frmAbout() : FormOf(Kind::TopLevel, "frmAbout", 4860, 3900) {
    BackColor = toolkit::kWhite; // blue titles with black shadows can't be read on a dark ground
    for (const TextLine& line : kLines) {
        auto& label = lbl1.load(line.index, *this, line.text, line.place);
        label.AutoSize = true;
        label.design = {.name = "Arial", .size = line.size};
        label.ForeColor = line.colour;
        label.TabIndex = line.tabIndex;
        label.isShadow = line.index == 0 || line.index == 2;
    }
    lblCopyright.load(1, *this, "", toolkit::Place{120, 720, 2550, 225}).TabIndex = 11;
    lblCopyright.load(0, *this, kCopyright, toolkit::Place{120, 1020, 2550, 285}).TabIndex = 8;
    for (const int i : {0, 1}) {
        lblCopyright(i).AutoSize = true;
        lblCopyright(i).design = {.size = 9.75};
        lblCopyright(i).FontBold = true;
        lblCopyright(i).ForeColor = toolkit::kBlack;
    }
    lblUser.TextAlign = toolkit::Alignment::Centre;
    lblUser.ForeColor = toolkit::kBlack;
    lblUser.shrinksText = true;
    lblUser.TabIndex = 10;
    for (int i = 0; i < kEmblemFrames; ++i) {
        auto& image = imgLogo.load(i, *this, "", toolkit::Place{5000, 0, 480, 480});
        image.Visible = false;
        image.Picture = emblemFrame(i);
    }
    pic1.Picture = imgLogo(kEmblemFrames - 1).Picture; // the first tick goes on from it
    pic1.ToolTipText = kSite;
    pic1.TabIndex = 0;
    pic1.DblClick = [this] { pic1_DblClick(); };
    img1.Picture = "zephyrwick";
    img1.spokenAs = kMaker;
    cmdOK.TabIndex = 7;
    cmdOK.Click = [this] { cmdOK_Click(); };
    Timer1.Interval = kTick;
    Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmAbout::Form_Load() {
    CenterForm(*this);
    lbl1(0).Caption = kProductTitle;
    lbl1(1).Caption = kProductTitle;
    Caption = "About " + std::string(kMaker) + "'s " + kProductTitle;
    NameUser();
    lblCopyright(1).Caption =
        "Version " + std::to_string(toolkit::App.Major) + "." + std::to_string(toolkit::App.Minor);
}

void frmAbout::NameUser() {
    failuresOff([&](auto step) {
        std::string buffer(200, '\0');
        step([&] {
            fill(std::span(buffer).first(199), platform::current().machine.GetUserNameA());
        });
        step([&] {
            lblUser.Caption =
                platform::current().locale.fromBytes(cLocalSettings::StringFromBuffer(buffer));
        });
    });
}

void frmAbout::Timer1_Timer() {
    failuresOff([&](auto step) {
        step([&] { mintFrame = static_cast<std::int16_t>(mintFrame % kEmblemFrames + 1); });
        step([&] { pic1.Picture = imgLogo(mintFrame - 1).Picture; });
    });
}

void frmAbout::pic1_DblClick() {
    failuresOff([&](auto step) {
        step([&] { Timer1.Enabled = false; }); // for as long as the box is open
        step([&] { OpenAddress(hWnd, kHomePage); });
    });
}

} // namespace quorvanta
