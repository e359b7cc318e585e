// A page is a child window of the frame. All pages come up in the same way, and their menu bars
// have the same menus around the one that a page has of its own.
#pragma once

#include "frame/Navigation.h"
#include "toolkit/Form.h"

#include <memory>

namespace quorvanta {

class Page : public toolkit::Form {
public:
    struct Design {
        const char* name;
        double clientWidth, clientHeight; // twips
        const char* title;                // the page's part of the caption
        const char* website;              // captions of menus and entries, from here on
        const char* ownMenu = nullptr;    // none without
        const char* file = "&File";
        const char* product = "Quor Vanta";
        const char* help = "Help";
        const char* contents = "Contents";
        const char* about = "About";
    };

    toolkit::Menu mnuFile;
    toolkit::Menu mnuMainForm{mnuFile, "mnuMainForm", "6 From 49", mnuMainForm_Click};
    toolkit::Menu mnuBankroll{mnuFile, "mnuBankroll", "Bankroll", mnuBankroll_Click};
    toolkit::Menu mnuCustomize{mnuFile, "mnuCustomize", "Customize 6", mnuCustomize_Click};
    toolkit::Menu mnuFavorites{mnuFile, "mnuFavorites", "Favorites", mnuFavorites_Click};
    toolkit::Menu mnuX342{mnuFile, "mnuX342", "-"};
    toolkit::Menu mnuClose{mnuFile, "mnuClose", "&Close", [this] { mnuClose_Click(); }};
    std::unique_ptr<toolkit::Menu> ownMenu;
    toolkit::Menu mnuQuorvantaLite;
    toolkit::Menu mnuWebsite;
    toolkit::Menu mnuHelp;
    toolkit::Menu mnuContents;
    toolkit::Menu mnu117{mnuHelp, "mnu117", "-"};
    toolkit::Menu mnuAbout;

protected:
    // `ownEntry` is the entry that would show the page that it stands on: it is disabled.
    Page(const Design& design, toolkit::Menu Page::*ownEntry);

    void Form_Load() override;
    virtual void SetFormProperties() = 0;

    void cmdCancel_Click() { Unload(); }
    void mnuClose_Click() { Unload(); }

private:
    const char* title_;
};

} // namespace quorvanta
