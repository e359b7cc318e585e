// Failures within routines, each brought about by its like: a control that can't be changed, a grid
// without cells, a worker without what it works on.
#include "frame/MDIForm1.h"
#include "frame/MainCode_ZW.h"
#include "lists/cFlexGrid.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "platform/LocaleItems.h"
#include "tests/support/ListPages.h"

#include <set>

namespace {

using namespace quorvanta;
using namespace tests;
using Labels = std::set<std::string>;

struct FailingPeer : toolkit::Peer {
    void changed(toolkit::Prop /*which*/) override { cellChanged(0, 0); }
    void cellChanged(int /*row*/, int /*column*/) override {
        throw platform::RuntimeError(platform::OutOfMemory);
    }
};
void fail(toolkit::Object& object) {
    object.attach(std::make_unique<FailingPeer>());
}

// Opens forms some of whose controls can't be changed while they are loaded.
struct FailingDesktop : FakeDesktop {
    void open(toolkit::Form& form) override {
        for (toolkit::Control* const control : allControls(form))
            if (dynamic_cast<toolkit::MSFlexGrid*>(control) ||
                dynamic_cast<toolkit::OptionButton*>(control))
                fail(*control);
        for (int i = 0; i < 10 && form.name() == "frmMain"; ++i)
            fail(static_cast<frmMain&>(form).mnuSystemPlay(i));
    }
};

class FailuresTest : public ProgramTest {
protected:
    FailuresTest() {
        desk.last = toolkit::Ignore;
        fillRows(gstrStammNumbers, "12");
        fillRows(gstrFavorites, "1");
    }
    // The labels of the failures since the last call.
    Labels reported() {
        Labels labels;
        for (const std::string& report : desk.takeReports())
            if (std::isdigit(static_cast<unsigned char>(report.front())))
                labels.insert(report.substr(report.find(' ') + 1));
        return labels;
    }
};

TEST_F(FailuresTest, RoutinesThatLoadAPageReportUnderLabelsOfTheirOwn) {
    FailingDesktop failing;
    failing.last = toolkit::Ignore;
    toolkit::install(&failing);
    open<frmMain>();
    open<frmCustomize6>();
    open<frmFavorites>();
    toolkit::install(&desk);
    desk.boxes = failing.boxes;
    EXPECT_EQ(reported(),
              (Labels{"frmMain.SetFormProperties", "XXX.CheckMenuSystemPlay",
                      "frmCustomize6.SetFormProperties", "frmCustomized.GetCustomizeUDTs",
                      "frmFavorites.SetFormProperties", "frmFavorite.GetFavoriteUDTs"}));
}

TEST_F(FailuresTest, RoutinesOfAnOpenPageReportUnderLabelsOfTheirOwn) {
    auto& customize = open<frmCustomize6>();
    customize.grd1.Cols = 1;
    customize.mnuJackpotGenerator.click();
    EXPECT_EQ(reported(), Labels{"frmCustomize6.GoCustomJackPot"});
    userClick(customize.cmdCopy);
    EXPECT_EQ(reported(), Labels{"frmCustomize6.SetCustomNumbers"});
    customize.Unload();
    EXPECT_EQ(reported(), Labels{"frmCustomize6.SetCustomizeUDTs"});

    auto& favorites = open<frmFavorites>();
    desk.answers = {toolkit::Yes};
    fail(favorites.grd1);
    userDoubleClickRow(favorites.grd1, 1);
    EXPECT_EQ(reported(), (Labels{"cFlexGrid.DeleteGridRow", "frmFavorites.DeleteGridRow"}));
    fail(favorites.statBar1);
    userKey(favorites, kCtrlKey, 2);
    EXPECT_EQ(reported(), Labels{"maincode_zw.SetStatBarText"});
    favorites.grd1.attach(nullptr);
    favorites.statBar1.attach(nullptr);
    favorites.grd1.Cols = 1;
    userClick(favorites.cmdCopy);
    EXPECT_EQ(reported(), Labels{"frmFavorites.SetFavoritesToGrid"});
    favorites.Unload();
    EXPECT_EQ(reported(), Labels{"frmFavorite.SetFavoriteUDTs"});
}

TEST_F(FailuresTest, OtherRoutinesReportUnderLabelsOfTheirOwn) {
    auto& frame = open<MDIForm1>();
    fail(frame);
    frame.Left.assume(0);
    CenterForm(frame);
    os.locale.items.erase(platform::LOCALE_IMEASURE);
    WriteSystemData();
    EXPECT_EQ(reported(), (Labels{"CenterForm", "MainCodeYQ.WriteSystemData"}));

    cLotto lotto; // without a board
    lotto.prpDrawNumber = lotto.prpRowNumber = 1;
    for (const int action : {1, 2, 4, 5, 6, 7})
        lotto.prpActionToDo = action;
    EXPECT_EQ(reported(), (Labels{"cLotto.Lotto49", "cLotto.SetCmdButtons", "cLotto.SetAllButtons",
                                  "cLotto.SetAllButtonsNoBold", "cLotto.SetCustomNumbers",
                                  "cLotto.PlayCustomNumbers"}));
    cFlexGrid rows; // without a grid
    for (const int action : {1, 2, 3, 4})
        rows.prpActionToDo = action;
    EXPECT_EQ(reported(), (Labels{"cFlexGrid.SetEmptyGrid", "cFlexGrid.DeleteGridRow",
                                  "cFlexGrid.MoveRowsUp", "cFlexGrid.ExchangeRows"}));
}

} // namespace
