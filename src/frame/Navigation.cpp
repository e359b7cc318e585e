#include "frame/Navigation.h"

#include "bankroll/frmBankroll.h"
#include "common/Trap.h"
#include "common/cInternet.h"
#include "frame/frmAbout.h"
#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "numbers/frmMain.h"
#include "platform/Platform.h"

namespace quorvanta {

void mnuMainForm_Click() {
    frmMain::the().Show();
}

void mnuCustomize_Click() {
    frmCustomize6::the().Show();
}

void mnuFavorites_Click() {
    frmFavorites::the().Show();
}

void mnuBankroll_Click() {
    frmBankroll::the().Show();
}

void mnuAbout_Click() {
    frmAbout::the().Show(true);
}

void mnuWebsite_Click(toolkit::Form& frm) {
    OpenProductWebsite(frm);
}

void mnuContents_Click(toolkit::Form& frm) {
    failuresOff([&](auto step) {
        step([&] {
            platform::current().help.WinHelpA(frm.hWnd, toolkit::App.HelpFile.c_str(),
                                              platform::HELP_TAB, 0);
        });
    });
}

} // namespace quorvanta
