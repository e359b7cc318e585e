// The routines of MainCode_ZW that forms call on themselves.
#include "common/Trap.h"
#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"

namespace quorvanta {

void CenterForm(toolkit::Form& frm) {
    trapped("CenterForm", [&](auto step) {
        step([&] { frm.Left = toolkit::Screen.Width() / 2 - frm.Width / 2; });
        step([&] { frm.Top = toolkit::Screen.Height() / 2 - frm.Height / 2; });
    });
}

void CenterChild(toolkit::Form& frm) {
    MDIForm1::the().Load();
    frm.Left = MDIForm1::the().Width / 2 - frm.Width / 2;
    frm.Top = 0;
}

void SelectAllText() {
    failuresOff([](auto step) {
        toolkit::Form* const form = toolkit::Screen.ActiveForm();
        auto* const box = form ? dynamic_cast<toolkit::TextBox*>(form->ActiveControl) : nullptr;
        if (!box)
            return;
        step([&] { box->SelStart = 0; });
        step([&] { box->SelLength = toolkit::characters(box->Text); });
    });
}

void SetStatBarText(toolkit::StatusBar& statusBar, int panel, const std::string& text) {
    trapped("maincode_zw.SetStatBarText",
            [&](auto step) { step([&] { statusBar.Panels(panel).Text = text; }); });
}

} // namespace quorvanta
