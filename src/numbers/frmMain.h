// The page "6 From 49": a board of the 49 numbers, on which a click draws a plain play of six
// numbers or a system play of up to 26. A play is only shown, as numbers turned red.
#pragma once

#include "frame/Page.h"

namespace quorvanta {

class frmMain : public toolkit::FormOf<frmMain, Page> {
public:
    frmMain();

    toolkit::ControlArray<toolkit::Frame> fra2{*this, "fra2"};
    toolkit::ControlArray<toolkit::Label> lbl1{*this, "lbl1"};
    toolkit::Frame frSystem{*this, "frSystem", "System -- 49", {4860, 270, 1815, 3255}};
    toolkit::ControlArray<toolkit::OptionButton> opt1{*this, "opt1"};
    toolkit::CommandButton cmdCancel{*this, "cmdCancel", "Close", {4860, 3795, 1815, 435}};
    toolkit::CommandButton cmdJackpot{
        *this, "cmdJackpot", "Generate Jackpot", {4860, 4425, 1815, 435}};
    toolkit::StatusBar statBar1{*this, "statBar1", {}, {0, 4950, 6825, 315}};

    toolkit::Menu& mnuGenerator = *ownMenu;
    toolkit::Menu mnuJackpot{mnuGenerator, "mnuJackpot", "Generate Jackpot",
                             [this] { mnuJackpot_Click(); }};
    toolkit::Menu mnuSystem{mnuGenerator, "mnuSystem", "System 49"};
    toolkit::ControlArray<toolkit::Menu> mnuSystemPlay{*this, "mnuSystemPlay"};

protected:
    void SetFormProperties() override;

private:
    void buildSystems();

    void cmdJackpot_Click();
    void mnuJackpot_Click() { cmdJackpot_Click(); }
    void opt1_Click(int Index);
    void mnuSystemPlay_Click(int Index);

    void SetSystemVariable(int index);
    void CheckMenuSystemPlay(int index);

    // Index of the option that was selected last. It outlives the page: where the stored setting is
    // of no use, the page that opens next plays by it.
    static inline int mintSystem = 0;
};

} // namespace quorvanta
