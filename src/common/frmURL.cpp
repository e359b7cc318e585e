#include "common/frmURL.h"

#include "common/Trap.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"

namespace quorvanta {

frmURL::frmURL() : FormOf(Kind::TopLevel, "frmURL", 5145, 2865) {
    cmdOk.Default = true;
    cmdOk.Click = [this] { cmdOk_Click(); };
    cmdCancel.Cancel = true;
    img1.Picture = "website";
    lbl2.TextAlign = Label1.TextAlign = toolkit::Alignment::Right;
    Txt1.spokenAs = std::string(kProductTitle) + " Website";
    Txt2.spokenAs = "Zephyrwick website";
    for (toolkit::TextBox* box : {&Txt1, &Txt2}) { // for copying, not for typing
        box->shrinksText = true;
        box->Locked = true;
    }
    Txt1.GotFocus = Txt1_GotFocus;
    Txt1.KeyDown = Txt1_KeyDown;
    Txt1.KeyPress = Txt1_KeyPress;
    Txt2.GotFocus = Txt2_GotFocus;
    Txt2.KeyDown = Txt2_KeyDown;
    Txt2.KeyPress = Txt2_KeyPress;
}

void frmURL::Form_Load() {
    Caption = std::string(kProductTitle) + " - Website";
    CenterForm(*this);
    SetProperties();
}

void frmURL::Txt1_GotFocus() {
    SelectAllText();
}

void frmURL::Txt2_GotFocus() {
    SelectAllText();
}

void frmURL::SetProperties() {
    trapped("frmURL.SetProperties", [&](auto step) {
        step([&] {
            lbl1.Caption = std::string(kProductTitle) +
                           " has been unable to establish an Internet connection.\r\n"
                           "Copy and paste one of the links below into your internet browser and "
                           "then try to establish a connection.";
        });
        step([&] { Txt1.Text = kProductPage; });
        step([&] { Txt2.Text = kHomePage; });
        step([&] { lbl2.Caption = std::string(kProductTitle) + " Website:"; });
    });
}

} // namespace quorvanta
