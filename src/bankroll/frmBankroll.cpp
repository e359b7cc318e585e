#include "bankroll/frmBankroll.h"

#include "common/DateText.h"
#include "common/NumberText.h"
#include "common/Trap.h"
#include "common/modZWMsg.h"
#include "frame/MainCode_ZW.h"
#include "frame/modQuorvantaLite.h"
#include "platform/Platform.h"

#include <cmath>
#include <optional>

namespace quorvanta {

namespace {

constexpr Page::Design kDesign{.name = "frmBankroll",
                               .clientWidth = 4005,
                               .clientHeight = 3165,
                               .title = "Bankroll",
                               .website = "Quorvanta Website"};

constexpr int kDate = 0;
constexpr int kMoneyBoxes = 3; // 1 to 3

// The shared value of a money box.
double& valueOf(int index) {
    return index == 1 ? gdblWin : index == 2 ? gdblLoss : gdblLargest;
}

std::string today() {
    const platform::DateTime now = platform::current().clock.now();
    return gstrShortDateFormat.empty() ? ShortDate(now) : FormatDate(now, gstrShortDateFormat);
}

double difference(double from, double less) {
    const double result = from - less;
    if (!std::isfinite(result))
        throw platform::RuntimeError(platform::Overflow);
    return result;
}

} // namespace

frmBankroll::frmBankroll() : FormOf(kDesign, &Page::mnuBankroll) {
    buildBoxes();
    fraBankroll.TabIndex = 6;
    lblBalance.TabIndex = 12;
    lblBalance.TextAlign = toolkit::Alignment::Centre;
    lblBalance.BorderStyle = true;
    lblBalance.shrinksText = true;
    lblBalance.design = {.name = "Arial", .size = 9.75};
    lblBalance.ForeColor = toolkit::kBlue;
    lblBalance.BackColor = toolkit::kWhite; // neither colour can be read on a dark ground
    cmdCancel.TabIndex = 4;
    cmdCancel.Cancel = true;
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdCalc.TabIndex = 5;
    cmdCalc.Click = [this] { cmdCalc_Click(); };
    mnuMainFrom.Click = mnuMainFrom_Click;
}

void frmBankroll::buildBoxes() {
    struct Box {
        int label, labelTabIndex, box, boxTabIndex;
        const char *caption, *toolTip;
        double left, top, labelWidth;
    };
    constexpr Box kBoxes[] = {
        {51, 11, 0, 0, "Date Started", "Date Started", 195, 330, 1800},
        {54, 8, 2, 1, "Total Amount of Bets", "Total Amount Played", 2115, 330, 1620},
        {52, 10, 1, 2, "Winnings  ", "Total amount won", 195, 945, 750},
        {53, 9, 3, 3, "Largest Win", "Largest win to date", 2115, 945, 1620},
        {55, 7, -1, 0, "Balance", "", 195, 1485, 1785},
    };
    for (const Box& it : kBoxes) {
        auto& label = lbl1.load(it.label, fraBankroll, it.caption,
                                toolkit::Place{it.left, it.top, it.labelWidth, 210});
        label.design = {.name = "Arial", .size = 8.25, .underline = true};
        label.TabIndex = it.labelTabIndex;
        if (it.box < 0)
            continue;
        auto& box =
            txtWin.load(it.box, fraBankroll, "", toolkit::Place{it.left, it.top + 225, 1530, 285});
        box.TabIndex = it.boxTabIndex;
        box.shrinksText = true;
        box.ToolTipText = it.toolTip;
        box.spokenAs = label.Caption.get().substr(0, label.Caption.get().find_last_not_of(' ') + 1);
        if (it.box != kDate)
            box.TextAlign = toolkit::Alignment::Right;
    }
    lbl1(55).TextAlign = toolkit::Alignment::Centre;
    txtWin.GotFocus = [this](int Index) { txtWin_GotFocus(Index); };
    txtWin.LostFocus = [this](int Index) { txtWin_LostFocus(Index); };
}

void frmBankroll::SetFormProperties() {
    trapped("frmBankroll.SetFormProperties", [&](auto step) {
        step([&] { findCalculator(gstrWinDirectory); });
        step([&] { findCalculator(gstrWinSysDirectory); });
        step([&] { cmdCalc.Visible = !mstrCalcPath.empty(); });
        step([&] { fillDate(gstrBankrollDate); });
        for (const int index : {2, 1, 3})
            step([&] { txtWin(index).Text = CStr(valueOf(index)); });
        for (int index = kDate; index <= kMoneyBoxes; ++index)
            step([&] { txtWin_LostFocus(index); });
    });
}

void frmBankroll::findCalculator(const std::string& directory) {
    const auto& os = platform::current();
    for (const std::string& path : os.shell.calculators(directory))
        if (mstrCalcPath.empty() && os.files.exists(path))
            mstrCalcPath = path;
}

void frmBankroll::txtWin_GotFocus(int Index) {
    SelectAllText();
    if (Index == kDate && txtWin(kDate).Text.get().empty())
        fillDate(today());
}

void frmBankroll::fillDate(const std::string& text) {
    txtWin(kDate).Text = txtWin(kDate).Tag = text;
}

void frmBankroll::txtWin_LostFocus(int Index) {
    trapped("frmBankroll.txtWin_LostFocus", [&](auto step) {
        toolkit::TextBox& box = txtWin(Index);
        if (box.Text.get().empty())
            return;
        if (Index == kDate) {
            const bool typed = box.Text.get() != box.Tag;
            std::optional<platform::DateTime> date;
            step([&] { date = ReadDate(box.Text.get()); });
            if (!date) {
                step([&] { msgEnterDate(); });
                step([&] { date = platform::current().clock.now(); });
                step([&] { fillDate(today()); });
            }
            if (typed && date)
                step([&] { gstrBankrollDate = ShortDate(*date); });
            step([&] { box.Tag = box.Text; });
        } else {
            std::optional<double> amount;
            step([&] { amount = ReadNumber(box.Text.get()); });
            if (!amount) {
                step([&] { msgNumericOnly(); });
                step([&] { box.Text = ""; });
                step([&] { box.SetFocus(); });
                return;
            }
            step([&] { box.Text = FormatMoney(*amount); });
            step([&] { valueOf(Index) = CDbl(box.Text.get()); });
        }
        step([&] { gdblBalance = difference(gdblWin, gdblLoss); });
        step([&] { lblBalance.Caption = FormatMoney(gdblBalance); });
        step([&] { lblBalance.ForeColor = gdblBalance >= 0 ? toolkit::kBlue : toolkit::kRed; });
    });
}

void frmBankroll::cmdCalc_Click() {
    failuresOff([&](auto step) { step([&] { platform::current().shell.start(mstrCalcPath); }); });
}

} // namespace quorvanta
