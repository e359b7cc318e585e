// The About box: the version, the user's name, the maker, and a small animation whose double click
// opens the maker's web site.
#pragma once

#include "toolkit/Form.h"

#include <cstdint>

namespace quorvanta {

class frmAbout : public toolkit::FormOf<frmAbout> {
public:
    frmAbout();

    toolkit::ControlArray<toolkit::Label> lbl1{*this, "lbl1"};
    toolkit::ControlArray<toolkit::Label> lblCopyright{*this, "lblCopyright"};
    toolkit::Line Line1{*this, "Line1", 195, 4600, 2625};
    toolkit::Label lblUser{*this, "lblUser", {}, {120, 2955, 4560, 225}};
    toolkit::PictureBox pic1{*this, "pic1", {}, {4155, 210, 540, 540}};
    toolkit::Image img1{*this, "img1", {}, {120, 3360, 1320, 465}};
    toolkit::CommandButton cmdOK{*this, "cmdOK", "&Ok", {3375, 3360, 1320, 465}};
    toolkit::Timer Timer1{*this, "Timer1"};
    // The frames of the animation, 0 to 29. They are never visible: they only store them.
    toolkit::ControlArray<toolkit::Image> imgLogo{*this, "imgLogo"};

protected:
    void Form_Load() override;

private:
    void NameUser();
    void cmdOK_Click() { Unload(); }
    void Timer1_Timer();
    void pic1_DblClick();

    std::int16_t mintFrame = 0; // the frame that is shown, counted from 1
};

} // namespace quorvanta
