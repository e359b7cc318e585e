#include "frame/MDIForm1.h"
#include "numbers/frmMain.h"
#include "tests/support/ProgramTest.h"

namespace {

using quorvanta::frmMain;

// A window that is taken away hands the focus on to the controls that are left in it.
struct PassingDesktop : tests::FakeDesktop {
    void close(toolkit::Form& form) override {
        for (toolkit::Control* control : tests::tabOrder(form))
            control->SetFocus();
    }
};

class FocusTest : public tests::ProgramTest {};

TEST_F(FocusTest, AFormThatHasGoneHoldsNeitherTheFocusNorTheFront) {
    PassingDesktop passing;
    toolkit::install(&passing);
    frmMain::the().Show();
    frmMain::the().cmdCancel.SetFocus();
    const auto gone = frmMain::the().weak_from_this();
    tests::userClick(frmMain::the().cmdCancel);
    EXPECT_TRUE(gone.expired());
    EXPECT_EQ(toolkit::Screen.ActiveForm(), &quorvanta::MDIForm1::the());

    int lost = 0;
    frmMain::the().Show();
    frmMain::the().opt1.LostFocus = [&](int) { ++lost; };
    frmMain::the().cmdJackpot.SetFocus();
    EXPECT_EQ(lost, 1);
}

} // namespace
