// The page "Bankroll": the running account of bets and winnings, typed in as totals. A box reaches
// its shared value when it loses the focus, and the balance is worked out anew then.
#pragma once

#include "frame/Page.h"

#include <string>

namespace quorvanta {

class frmBankroll : public toolkit::FormOf<frmBankroll, Page> {
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

    // The names by which this page calls two of the menus.
    toolkit::Menu& mnuMainFrom = mnuMainForm;
    toolkit::Menu& mnuQuorvantalite = mnuQuorvantaLite;

protected:
    void SetFormProperties() override;

private:
    void buildBoxes();

    void txtWin_GotFocus(int Index);
    void txtWin_LostFocus(int Index);
    void cmdCalc_Click();
    static void mnuMainFrom_Click() { mnuMainForm_Click(); }

    void findCalculator(const std::string& directory);
    void fillDate(const std::string& text);

    std::string mstrCalcPath; // of the calculator, empty where there is none
};

} // namespace quorvanta
