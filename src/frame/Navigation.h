// What the entries do that every menu has, on the frame and on the pages, and the frame's toolbar.
#pragma once

#include "toolkit/Form.h"

namespace quorvanta {

void mnuMainForm_Click();
void mnuBankroll_Click();
void mnuCustomize_Click();
void mnuFavorites_Click();
void mnuAbout_Click();
void mnuContents_Click(toolkit::Form& frm);
void mnuWebsite_Click(toolkit::Form& frm);

} // namespace quorvanta
