#include "numbers/frmMain.h"

#include "common/NumberText.h"
#include "common/Trap.h"
#include "common/UserSetting.h"
#include "frame/MainCode_ZW.h"
#include "frame/modConstants.h"
#include "numbers/Board.h"
#include "numbers/cLotto.h"

#include <array>
#include <string>

namespace quorvanta {

namespace {

constexpr Page::Design kDesign{.name = "frmMain",
                               .clientWidth = 6825,
                               .clientHeight = 5265,
                               .title = "6 From 49",
                               .website = "Quor Vanta Website",
                               .ownMenu = "&Generator",
                               .product = "&Quor Vanta ",
                               .help = "&Help",
                               .contents = "&Contents",
                               .about = "&About"};

constexpr BoardDesign kBoard{.frame = {120, 270, 4560, 4590},
                             .labels = {.lefts = {75, 690, 1320, 1950, 2580, 3210, 3840},
                                        .firstTop = 150,
                                        .lineHeight = 630,
                                        .width = 615,
                                        .height = 615},
                             .fontSize = 24};

struct System {
    const char* caption;
    const char* tag; // how many numbers are drawn
    double top;      // twips
};
constexpr std::array<System, 10> kSystems{{{"6 From 49", "6", 300},
                                           {"7 From 49", "7", 585},
                                           {"8 From 49", "8", 870},
                                           {"9 From 49", "9", 1155},
                                           {"10 From 49", "10", 1440},
                                           {"11 From 49", "11", 1725},
                                           {"12 From 49", "12", 2010},
                                           {"13 From 49", "13", 2310},
                                           {"22 From 49", "22", 2610},
                                           {"26 From 49", "26", 2895}}};
constexpr int kSystemCount = static_cast<int>(kSystems.size());
constexpr const char* kSystemKey = "system";

} // namespace

frmMain::frmMain() : FormOf(kDesign, &Page::mnuMainForm) {
    MinButton = true;
    buildBoard(*this, fra2, 0, lbl1, kBoard);
    buildSystems();
    cmdCancel.TabIndex = kSystemCount;
    cmdJackpot.TabIndex = kSystemCount + 1;
    cmdCancel.Cancel = true;
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdJackpot.Click = [this] { cmdJackpot_Click(); };
    mnuJackpot.Shortcut = "F5";
    opt1.Click = [this](int Index) { opt1_Click(Index); };
    mnuSystemPlay.Click = [this](int Index) { mnuSystemPlay_Click(Index); };
}

void frmMain::buildSystems() {
    for (int i = 0; i < kSystemCount; ++i) {
        const System& system = kSystems[static_cast<std::size_t>(i)];
        auto& option =
            opt1.load(i, frSystem, system.caption, toolkit::Place{120, system.top, 1320, 285});
        option.Tag = system.tag;
        option.TabIndex = kSystemCount - 1 - i;
        mnuSystemPlay.load(i, mnuSystem, system.caption);
    }
}

void frmMain::SetFormProperties() {
    trapped("frmMain.SetFormProperties", [&](auto step) {
        int n = -1; // no option has this index, so a setting that is no number chooses none
        step([&] { n = CInt(ZWGetSetting(kSystemKey, "0")); });
        step([&] { opt1(n).Value = true; });
        step([&] { CheckMenuSystemPlay(n); });
    });
}

void frmMain::opt1_Click(int Index) {
    mintSystem = Index;
    SetSystemVariable(mintSystem);
    CheckMenuSystemPlay(mintSystem);
}

void frmMain::SetSystemVariable(int index) {
    trapped("frmMain.SetSystemVariable",
            [&](auto step) { step([&] { ZWSaveSetting(kSystemKey, std::to_string(index)); }); });
}

void frmMain::CheckMenuSystemPlay(int index) {
    trapped("XXX.CheckMenuSystemPlay", [&](auto step) {
        for (int i = 0; i < kSystemCount; ++i)
            step([&] { mnuSystemPlay(i).Checked = false; });
        step([&] { mnuSystemPlay(index).Checked = true; });
    });
}

void frmMain::mnuSystemPlay_Click(int Index) {
    CheckMenuSystemPlay(Index);
    opt1(Index).Value = true;
}

void frmMain::cmdJackpot_Click() {
    cLotto lotto;
    for (int n = 1; n <= kNumbers; ++n)
        lbl1(n).ForeColor = toolkit::kBlack;
    lotto.prpControl.Set(lbl1.ref());
    lotto.prpDrawNumber = CInt(opt1(mintSystem).Tag);
    lotto.prpActionToDo = cLotto::Draw;
    announceDraw(lbl1);
}

} // namespace quorvanta
