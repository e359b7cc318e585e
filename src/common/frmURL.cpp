#include "common/frmURL.h"

#include "common/Trap.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"

namespace quorvanta {

frmURL::frmURL() : FormOf(Kind::TopLevel, "frmURL", 5145, 2865) {
    cmdOk.Default = true;
    cmdOk.Click = [this] { Unload(); };
    cmdCancel.Cancel = true;
    img1.Picture = "website";
    lbl2.TextAlign = Label1.TextAlign = toolkit::Alignment::Right;
    Txt1.spokenAs = std::string(kProductTitle) + " Website";
    Txt2.spokenAs = "Zephyrwick website";
    for (toolkit::TextBox* box : {&Txt1, &Txt2}) { // for copying, not for typing
        box->shrinksText = true;
        box->Locked = true;
        box->GotFocus = SelectAllText;
        box->KeyDown = [](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
        box->KeyPress = [](int& KeyAscii) { KeyAscii = 0; };
    }
}

void frmURL::Form_Load() {
    Caption = std::string(kProductTitle) + " - Website";
    CenterForm(*this);
    SetProperties();
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
