// The dialog that hands the user the links to copy when the web site couldn't be opened.
#pragma once

#include "toolkit/Form.h"

namespace quorvanta {

class frmURL : public toolkit::FormOf<frmURL> {
public:
    frmURL();

    toolkit::CommandButton cmdOk{*this, "cmdOk", "&OK", {3930, 2325, 1125, 465}};
    toolkit::Label lbl1{*this, "lbl1", {}, {1860, 165, 3090, 975}};
    toolkit::TextBox Txt1{*this, "Txt1", {}, {1845, 1275, 3210, 360}};
    toolkit::TextBox Txt2{*this, "Txt2", {}, {1845, 1800, 3210, 360}};
    toolkit::Label lbl2{*this, "lbl2", {}, {150, 1350, 1650, 195}};
    toolkit::Label Label1{*this, "Label1", "Zephyrwick website:", {120, 1845, 1680, 285}};
    // Below what can be seen of the form: Esc presses it, and nothing happens.
    toolkit::CommandButton cmdCancel{*this, "cmdCancel", "Cancel", {90, 3570, 1125, 465}};
    toolkit::Image img1{*this, "img1", {}, {120, 165, 480, 480}};

protected:
    void Form_Load() override;

private:
    // The boxes drop every key.
    static void Txt1_GotFocus();
    static void Txt1_KeyDown(int& KeyCode, int /*Shift*/) { KeyCode = 0; }
    static void Txt1_KeyPress(int& KeyAscii) { KeyAscii = 0; }
    static void Txt2_GotFocus();
    static void Txt2_KeyDown(int& KeyCode, int /*Shift*/) { KeyCode = 0; }
    static void Txt2_KeyPress(int& KeyAscii) { KeyAscii = 0; }
    void cmdOk_Click() { Unload(); }

    void SetProperties();
};

} // namespace quorvanta
