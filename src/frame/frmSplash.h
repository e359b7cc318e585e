// The window that shows for 3.5 seconds when the program starts. Its timer opens the frame.
#pragma once

#include "toolkit/Form.h"

namespace quorvanta {

class frmSplash : public toolkit::FormOf<frmSplash> {
public:
    frmSplash();

    toolkit::Timer Timer1{*this, "Timer1"};
    toolkit::Image img1{*this, "img1", {}, {0, 630, 7155, 2595}};
    toolkit::Image imgLogo{*this, "imgLogo", {}, {225, 150, 480, 480}};
    toolkit::ControlArray<toolkit::Label> lblProductName{*this, "lblProductName"};
    toolkit::ControlArray<toolkit::Label> lblZW{*this, "lblZW"};
    toolkit::Label lblVersion{*this, "lblVersion", "Version", {105, 1575, 6255, 285}};
    toolkit::ControlArray<toolkit::Label> lblMaker{*this, "lblMaker"};

protected:
    void Form_Load() override;
    void Form_KeyPress(int& KeyAscii) override;

private:
    void Timer1_Timer();
};

} // namespace quorvanta
