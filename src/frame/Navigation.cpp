#include "frame/Navigation.h"

#include "numbers/frmMain.h"

namespace quorvanta {

void mnuMainForm_Click() {
    frmMain::the().Show();
}

// These pages have not joined the program yet.
void mnuBankroll_Click() {}
void mnuCustomize_Click() {}
void mnuFavorites_Click() {}
void mnuAbout_Click() {}
void mnuWebsite_Click(toolkit::Form& /*frm*/) {}

void mnuContents_Click(toolkit::Form& frm) {
    toolkit::desktop().help(frm, toolkit::App.HelpFile);
}

} // namespace quorvanta
