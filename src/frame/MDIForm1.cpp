#include "frame/MDIForm1.h"

#include "common/modZWMsg.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"

namespace quorvanta {

MDIForm1::MDIForm1() : FormOf(Kind::MDIFrame, "MDIForm1", 10905, 7725) {
    tlbar1.Images = &ils1;
    tlbar1.Buttons = {{"lotto", "6 from 49", 1},
                      {"customizesix", "Customize Six", 2},
                      {"favorites", "Favorites", 3},
                      {"bankroll", "Bankroll", 4},
                      {},
                      {"help", "Help", 5},
                      {"exit", "Exit", 6}};
    tlbar1.ButtonClick = [this](const toolkit::ToolbarButton& button) {
        tlbar1_ButtonClick(button);
    };
}

void MDIForm1::MDIForm_Load() {
    Caption = std::string(kMaker) + " - " + kProductTitle;
    CenterForm(*this);
}

void MDIForm1::MDIForm_QueryUnload(int& Cancel, int UnloadMode) {
    if (UnloadMode == toolkit::FormControlMenu && msgExit() == toolkit::No) {
        Cancel = 1;
        return;
    }
    EndApp(*this);
}

void MDIForm1::tlbar1_ButtonClick(const toolkit::ToolbarButton& Button) {
    if (Button.Key == "lotto")
        mnuMainForm_Click();
    else if (Button.Key == "customizesix")
        mnuCustomize_Click();
    else if (Button.Key == "favorites")
        mnuFavorites_Click();
    else if (Button.Key == "bankroll")
        mnuBankroll_Click();
    else if (Button.Key == "help")
        mnuContents_Click(*this);
    else if (Button.Key == "exit")
        mnuExit_Click();
}

void MDIForm1::mnuExit_Click() {
    if (msgExit() != toolkit::No)
        EndApp(*this);
}

} // namespace quorvanta
