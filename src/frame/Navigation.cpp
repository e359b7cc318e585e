#include "frame/Navigation.h"

#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "numbers/frmMain.h"

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

// These pages have not joined the program yet.
void mnuBankroll_Click() {}
void mnuAbout_Click() {}
void mnuWebsite_Click(toolkit::Form& /*frm*/) {}

void mnuContents_Click(toolkit::Form& frm) {
    toolkit::desktop().help(frm, toolkit::App.HelpFile);
}

} // namespace quorvanta
