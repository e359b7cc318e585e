// The program's main window. It holds the toolbar, the status bar and the pages.
#pragma once

#include "frame/Navigation.h"
#include "toolkit/Form.h"

namespace quorvanta {

class MDIForm1 : public toolkit::FormOf<MDIForm1> {
public:
    MDIForm1();

    toolkit::ImageList ils1{{"lotto", "customizesix", "favorites", "bankroll", "help", "exit"}};
    toolkit::Toolbar tlbar1{*this, "tlbar1", {}, {0, 0, 10905, 660}};
    toolkit::StatusBar statBar1{*this, "statBar1", {}, {0, 7365, 10905, 360}};

    toolkit::Menu mnuFile{*this, "mnuFile", "&File"};
    toolkit::Menu mnuMainForm{mnuFile, "mnuMainForm", "6 from 49", mnuMainForm_Click};
    toolkit::Menu mnuBankroll{mnuFile, "mnuBankroll", "Bankroll", mnuBankroll_Click};
    toolkit::Menu mnuCustomize{mnuFile, "mnuCustomize", "Customize 6", mnuCustomize_Click};
    toolkit::Menu mnuFavorites{mnuFile, "mnuFavorites", "Favorites", mnuFavorites_Click};
    toolkit::Menu mnuLine1{mnuFile, "mnuLine1", "-"};
    toolkit::Menu mnuExit{mnuFile, "mnuExit", "&Exit", [this] { mnuExit_Click(); }};
    toolkit::Menu mnuQuorvantaLite{*this, "mnuQuorvantaLite", "&Quor Vanta "};
    toolkit::Menu mnuWebsite{mnuQuorvantaLite, "mnuWebsite", "Quor Vanta Website",
                             [this] { mnuWebsite_Click(*this); }};
    toolkit::Menu mnuHelp{*this, "mnuHelp", "&Help"};
    toolkit::Menu mnuContents{mnuHelp, "mnuContents", "&Contents",
                              [this] { mnuContents_Click(*this); }};
    toolkit::Menu mnuLine2{mnuHelp, "mnuLine2", "-"};
    toolkit::Menu mnuAbout{mnuHelp, "mnuAbout", "&About", mnuAbout_Click};

protected:
    void Form_Load() override { MDIForm_Load(); }
    void Form_QueryUnload(int& Cancel, int UnloadMode) override {
        MDIForm_QueryUnload(Cancel, UnloadMode);
    }

private:
    void MDIForm_Load();
    void MDIForm_QueryUnload(int& Cancel, int UnloadMode);
    void tlbar1_ButtonClick(const toolkit::ToolbarButton& Button);
    void mnuExit_Click();
};

} // namespace quorvanta
