// Failures within routines, each brought about by its like: a control that can't be changed, a grid
// without cells, a worker without what it works on.
#include "bankroll/frmBankroll.h"
#include "common/cLocalSettings.h"
#include "common/frmURL.h"
#include "frame/MDIForm1.h"
#include "lists/cFlexGrid.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "platform/LocaleItems.h"
#include "storage/cQuorvantaLite.h"
#include "tests/support/ProgramTest.h"

#include <cmath>
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

struct FailuresTest : ProgramTest {
    MDIForm1& frame = open<MDIForm1>();

    FailuresTest() {
        desk.last = toolkit::Ignore;
        fillRows(gstrStammNumbers, "12");
        fillRows(gstrFavorites, "12");
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

TEST_F(FailuresTest, RoutinesOfThePagesReportUnderLabelsOfTheirOwn) {
    auto& customize = open<frmCustomize6>();
    customize.grd1.Cols = 1;
    customize.mnuJackpotGenerator.click();
    EXPECT_EQ(reported(), Labels{"frmCustomize6.GoCustomJackPot"});
    userClick(customize.cmdCopy);
    EXPECT_EQ(reported(), Labels{"frmCustomize6.SetCustomNumbers"});
    customize.Unload();
    EXPECT_EQ(reported(), Labels{"frmCustomize6.SetCustomizeUDTs"});

    auto& favorites = open<frmFavorites>();
    fail(favorites.statBar1);
    userKey(favorites, toolkit::key::Ctrl, 2);
    EXPECT_EQ(reported(), Labels{"maincode_zw.SetStatBarText"});
    favorites.statBar1.attach(nullptr);
    userClickRow(favorites.grd1, 2);
    favorites.grd1.Rows = 2; // the row that was picked first has gone
    userClickRow(favorites.grd1, 1);
    EXPECT_EQ(reported(), Labels{"frmFavorites.ShiftRows"});
    favorites.grd1.Rows = kRows + 1;
    desk.answers = {toolkit::Yes};
    fail(favorites.grd1);
    userDoubleClickRow(favorites.grd1, 1);
    EXPECT_EQ(reported(), (Labels{"cFlexGrid.DeleteGridRow", "frmFavorites.DeleteGridRow"}));
    favorites.grd1.attach(nullptr);
    favorites.grd1.Cols = 1;
    userClick(favorites.cmdCopy);
    EXPECT_EQ(reported(), Labels{"frmFavorites.SetFavoritesToGrid"});
    favorites.Unload();
    EXPECT_EQ(reported(), Labels{"frmFavorite.SetFavoriteUDTs"});

    os.settings.broken = true;
    userClick(open<frmMain>().opt1(3));
    EXPECT_EQ(reported(), Labels{"frmMain.SetSystemVariable"});
    frmMain::the().Unload();

    fillRows(gstrFavorites, "1");
    for (int i = 0; i < 10; ++i) {
        fail(frmMain::the().opt1(i));
        fail(frmMain::the().mnuSystemPlay(i));
    }
    open<frmMain>();
    EXPECT_EQ(reported(), (Labels{"frmMain.SetFormProperties", "XXX.CheckMenuSystemPlay"}));
    fail(frmCustomize6::the().grd1);
    open<frmCustomize6>();
    EXPECT_EQ(reported(),
              (Labels{"frmCustomize6.SetFormProperties", "frmCustomized.GetCustomizeUDTs"}));
    fail(frmFavorites::the().grd1);
    open<frmFavorites>();
    EXPECT_EQ(reported(),
              (Labels{"frmFavorites.SetFormProperties", "frmFavorite.GetFavoriteUDTs"}));
}

TEST_F(FailuresTest, OtherRoutinesReportUnderLabelsOfTheirOwn) {
    desk.last = toolkit::Abort;
    os.locale.items.erase(platform::LOCALE_IMEASURE);
    os.machine.broken = os.random.broken = true;
    gdblLoss = HUGE_VAL;
    os.files.fault = [](const std::string& operation, const std::string& /*path*/) {
        if (operation == "changeDirectory")
            throw platform::RuntimeError(platform::PathNotFound);
    };
    fail(frame);
    frame.Left.assume(0);
    fail(frmURL::the().Txt1);
    cLotto lotto; // without a board
    lotto.prpDrawNumber = lotto.prpRowNumber = 1;
    cFlexGrid rows; // without a grid
    const std::pair<std::function<void()>, Labels> routines[] = {
        {Main, {"Sub Main"}},
        {[&] { CenterForm(frame); }, {"CenterForm"}},
        {WriteSystemData, {"MainCodeYQ.WriteSystemData"}},
        {[] { cLocalSettings().prpWinDirectory(); }, {"cLocalSettings.GetWindowsDir"}},
        {[] { cLocalSettings().prpWinSysDirectory(); }, {"cLocalSettings.GetWindowsSysDir"}},
        {[] { frmURL::the().Load(); }, {"frmURL.SetProperties"}},
        {[] { frmBankroll::the().Load(); }, {"frmBankroll.SetFormProperties"}},
        {[] { cQuorvantaLite().WriteLottoFile(); }, {"WriteLottoFile"}},
        {[&] { lotto.prpActionToDo = cLotto::Draw; }, {"cLotto.Lotto49"}},
        {[&] { lotto.prpActionToDo = cLotto::ToggleKey; }, {"cLotto.SetCmdButtons"}},
        {[&] { lotto.prpActionToDo = cLotto::PickAll; }, {"cLotto.SetAllButtons"}},
        {[&] { lotto.prpActionToDo = cLotto::PickNone; }, {"cLotto.SetAllButtonsNoBold"}},
        {[&] { lotto.prpActionToDo = cLotto::ShowRow; }, {"cLotto.SetCustomNumbers"}},
        {[&] { lotto.prpActionToDo = cLotto::DrawFromEnabled; }, {"cLotto.PlayCustomNumbers"}},
        {[&] { rows.prpActionToDo = 1; }, {"cFlexGrid.SetEmptyGrid"}},
        {[&] { rows.prpActionToDo = 2; }, {"cFlexGrid.DeleteGridRow"}},
        {[&] { rows.prpActionToDo = 3; }, {"cFlexGrid.MoveRowsUp"}},
        {[&] { rows.prpActionToDo = 4; }, {"cFlexGrid.ExchangeRows", "cFlexGrid.MoveRowsUp"}}};
    for (const auto& [routine, labels] : routines) {
        routine();
        EXPECT_EQ(reported(), labels);
    }
}

} // namespace
