// The page "Bankroll": the running account of bets and winnings, typed in as totals. A box reaches
// its shared value when it loses the focus, and the balance is worked out anew then.
#pragma once

#include "frame/Navigation.h"
#include "toolkit/Form.h"

#include <string>

namespace quorvanta {

class frmBankroll : public toolkit::FormOf<frmBankroll> {
public:
    frmBankroll();

    toolkit::Frame fraBankroll{*this, "fraBankroll", "Bankroll", {120, 120, 3780, 2295}};
    toolkit::ControlArray<toolkit::Label> lbl1{*this, "lbl1"}; // 51 to 55
    // 0 the date, 1 the winnings, 2 the bets, 3 the largest win. The Tag of the date box is the
    // text that the page put in or that it was left with last: only another one is the user's.
    toolkit::ControlArray<toolkit::TextBox> txtWin{*this, "txtWin"};
    toolkit::Label lblBalance{fraBankroll, "lblBalance", {}, {195, 1710, 1785, 285}};
    toolkit::CommandButton cmdCancel{*this, "cmdCancel", "Close", {120, 2520, 1530, 495}};
    toolkit::CommandButton cmdCalc{*this, "cmdCalc", "Calculator", {2370, 2520, 1530, 500}};

    toolkit::Menu mnuFile{*this, "mnuFile", "&File"};
    toolkit::Menu mnuMainFrom{mnuFile, "mnuMainFrom", "6 From 49", mnuMainForm_Click};
    toolkit::Menu mnuBankroll{mnuFile, "mnuBankroll", "Bankroll"};
    toolkit::Menu mnuCustomize{mnuFile, "mnuCustomize", "Customize 6", mnuCustomize_Click};
    toolkit::Menu mnuFavorites{mnuFile, "mnuFavorites", "Favorites", mnuFavorites_Click};
    toolkit::Menu mnuLine1{mnuFile, "mnuLine1", "-"};
    toolkit::Menu mnuClose{mnuFile, "mnuClose", "&Close", [this] { Unload(); }};
    toolkit::Menu mnuQuorvantalite{*this, "mnuQuorvantalite", "Quor Vanta"};
    toolkit::Menu mnuWebsite{mnuQuorvantalite, "mnuWebsite", "Quorvanta Website",
                             [this] { mnuWebsite_Click(*this); }};
    toolkit::Menu mnuHelp{*this, "mnuHelp", "Help"};
    toolkit::Menu mnuContents{mnuHelp, "mnuContents", "Contents",
                              [this] { mnuContents_Click(*this); }};
    toolkit::Menu mnuLine2{mnuHelp, "mnuLine2", "-"};
    toolkit::Menu mnuAbout{mnuHelp, "mnuAbout", "About", mnuAbout_Click};

protected:
    void Form_Load() override;

private:
    void buildBoxes();

    void txtWin_GotFocus(int Index);
    void txtWin_LostFocus(int Index);
    void cmdCalc_Click();

    void SetFormProperties();
    void findCalculator(const std::string& directory);
    void fillDate(const std::string& text);

    std::string mstrCalcPath; // of the calculator, empty where there is none
};

} // namespace quorvanta
