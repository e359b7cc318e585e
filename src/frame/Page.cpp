#include "frame/Page.h"

#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"

#include <string>

namespace quorvanta {

Page::Page(const Design& design, toolkit::Menu Page::*ownEntry)
    : Form(Kind::MDIChild, design.name, design.clientWidth, design.clientHeight),
      mnuFile(*this, "mnuFile", design.file),
      ownMenu(design.ownMenu ? new toolkit::Menu(*this, "ownMenu", design.ownMenu) : nullptr),
      mnuQuorvantaLite(*this, "mnuQuorvantaLite", design.product),
      mnuWebsite(mnuQuorvantaLite, "mnuWebsite", design.website,
                 [this] { mnuWebsite_Click(*this); }),
      mnuHelp(*this, "mnuHelp", design.help),
      mnuContents(mnuHelp, "mnuContents", design.contents, [this] { mnuContents_Click(*this); }),
      mnuAbout(mnuHelp, "mnuAbout", design.about, mnuAbout_Click),
      title_(design.title) {
    (this->*ownEntry).Enabled = false;
}

void Page::Form_Load() {
    Caption = std::string(kProductTitle) + " - " + title_;
    SetFormProperties();
    CenterChild(*this);
}

} // namespace quorvanta
