// The program's pages as real windows on a real X server: the mouse and the keyboard are those of
// xdotool.
#include "bankroll/frmBankroll.h"
#include "common/MakerSite.h"
#include "common/frmURL.h"
#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/QtDesktop.h"
#include "desktop/qt/Windows.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "numbers/frmMain.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace {

using namespace quorvanta;
using namespace tests;

QWidget& widget(const toolkit::Control& control) {
    return *desktop_qt::widgetOf(control);
}

// Lets the program's events run until `holds`. False after five seconds.
template <class Condition>
bool until(Condition holds) {
    return QTest::qWaitFor(holds, 5000);
}

void xdotool(const QStringList& arguments) {
    QProcess process;
    process.start("xdotool", arguments);
    ASSERT_TRUE(until([&] { return process.state() == QProcess::NotRunning; }));
    ASSERT_EQ(process.exitCode(), 0);
    QTest::qWait(30); // the server hands the events over
}

void click(const QWidget& at, QPoint point, int times = 1, int button = 1) {
    const QPoint where = at.mapToGlobal(point);
    xdotool(QStringLiteral("mousemove %1 %2 click --repeat %3 --delay 60 %4")
                .arg(where.x())
                .arg(where.y())
                .arg(times)
                .arg(button)
                .split(' '));
}
void click(const toolkit::Control& control) {
    click(widget(control), widget(control).rect().center());
}
void clickRow(toolkit::MSFlexGrid& grid, int row, int times = 1) {
    auto& view = dynamic_cast<QTableView&>(widget(grid));
    click(*view.viewport(), {40, view.rowViewportPosition(row - 1) + 6}, times);
}
void key(const char* name) {
    xdotool({"key", name});
}
void keys(std::initializer_list<const char*> names) {
    for (const char* name : names)
        key(name);
}

// Does `first`, which opens a modal window, and once it is in front `then`, which closes it.
template <class First, class Then>
void inModal(First first, Then then) {
    bool done = false;
    QTimer watch; // the window runs an event loop of its own inside `first`
    QObject::connect(&watch, &QTimer::timeout, [&] {
        const QWidget* const window = QApplication::activeModalWidget();
        if (!window || !window->isActiveWindow())
            return;
        watch.stop();
        then();
        done = true;
    });
    watch.start(20);
    first();
    EXPECT_TRUE(until([&] { return done && !QApplication::activeModalWidget(); }));
}

// Does `first`, which opens a message box, and answers the box by a click on `button`.
template <class Action>
std::string answer(Action first, const char* button) {
    std::string text;
    inModal(first, [&] {
        const auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
        text = box.text().toStdString();
        const auto buttons = box.buttons();
        const QAbstractButton& chosen =
            **std::ranges::find(buttons, button, &QAbstractButton::text);
        click(chosen, chosen.rect().center());
    });
    return text;
}

bool painted(const toolkit::Label& label, QColor colour) {
    const QImage image = widget(label).grab().toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == colour)
                return true;
    return false;
}
template <class Labels>
int paintedRed(const Labels& labels) {
    int count = 0;
    for (int n = 1; n <= 49; ++n)
        count += painted(labels(n), Qt::red) ? 1 : 0;
    return count;
}

class PagesTest : public ::testing::Test {
protected:
    FakePlatform os;

    PagesTest() {
        ResetSharedState();
        gintLanguage = 1;
        for (int r = 1; r <= 3; ++r)
            gstrStammNumbers[static_cast<std::size_t>(r)] =
                std::to_string(r) + ";11;12;13;14;15;16" + std::string(43, ';');
        MDIForm1::the().Show();
        EXPECT_TRUE(until([] { return window().isActiveWindow(); }));
    }
    ~PagesTest() override {
        toolkit::Form::dropAll();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    static QMainWindow& window() {
        const auto* peer = dynamic_cast<desktop_qt::FormPeer*>(MDIForm1::the().peer());
        return dynamic_cast<QMainWindow&>(*peer->window());
    }
    static QString menus() {
        QStringList titles;
        for (const QAction* action : window().menuBar()->actions())
            titles << action->text();
        return titles.join("|");
    }
    static void press(const char* toolbarKey) {
        auto& bar = dynamic_cast<QToolBar&>(widget(MDIForm1::the().tlbar1));
        auto* const button = bar.widgetForAction(bar.findChild<QAction*>(toolbarKey));
        click(*button, button->rect().center());
    }
    template <class Page>
    static Page& open(const char* toolbarKey) {
        press(toolbarKey);
        EXPECT_TRUE(until([] { return Page::ifLoaded() != nullptr; }));
        return Page::the();
    }
};

TEST_F(PagesTest, ThePlayIsOnTheBoardAfterAClickAndAfterF5AndEscClosesThePage) {
    EXPECT_EQ(menus(), "&File|&Quor Vanta |&Help");
    auto& page = open<frmMain>("lotto");
    EXPECT_EQ(menus(), "&File|&Generator|&Quor Vanta |&Help");
    click(page.cmdJackpot);
    EXPECT_TRUE(until([&] { return paintedRed(page.lbl1) == 6; }));
    click(page.opt1(9));
    EXPECT_EQ(paintedRed(page.lbl1), 6);
    key("F5");
    EXPECT_TRUE(until([&] { return paintedRed(page.lbl1) == 26; }));
    key("Escape");
    EXPECT_TRUE(until([] { return !frmMain::ifLoaded(); }));
    EXPECT_EQ(menus(), "&File|&Quor Vanta |&Help");
    EXPECT_TRUE(open<frmMain>("lotto").opt1(9).Value);
}

TEST_F(PagesTest, ARowIsPickedFiledShownAndDrawnFrom) {
    auto& page = open<frmCustomize6>("customizesix");
    for (const int n : {41, 3, 48, 7, 33, 12, 25})
        click(page.cmdKey(n));
    click(page.cmdCopy);
    EXPECT_TRUE(until([] { return gstrStammNumbers[4].starts_with("3;7;12;25;33;41;48;;"); }));
    clickRow(page.grd1, 4);
    EXPECT_TRUE(until([&] { return !page.Label1(1).Enabled && page.Label1(48).Enabled; }));
    EXPECT_TRUE(painted(page.Label1(1), Qt::white));
    EXPECT_FALSE(painted(page.Label1(1), Qt::black));
    key("F5");
    EXPECT_TRUE(until([&] { return paintedRed(page.Label1) == 6; }));
    auto& header = *dynamic_cast<QTableView&>(widget(page.grd1)).horizontalHeader();
    click(header, {50, 5}); // a click on the grid, but no other row
    EXPECT_TRUE(until([&] { return paintedRed(page.Label1) == 0; }));
    EXPECT_EQ(page.grd1.row(), 4);
}

TEST_F(PagesTest, ADoubleClickAsksAndOnlyYesDeletes) {
    auto& page = open<frmCustomize6>("customizesix");
    const auto twice = [&] { clickRow(page.grd1, 1, 2); };
    EXPECT_EQ(answer(twice, "&No"), "Do you want to delete this row from the grid?");
    EXPECT_EQ(page.grd1.row(), 0);
    EXPECT_TRUE(gstrStammNumbers[1].starts_with("1;"));
    answer(twice, "&Yes");
    EXPECT_TRUE(gstrStammNumbers[1].starts_with("2;"));
}

TEST_F(PagesTest, ShiftModeOutlivesItsMessageAndAMenuButNotAClickOnAButton) {
    auto& page = open<frmCustomize6>("customizesix");
    const auto on = [&] { return page.statBar1.Panels(1).get() == "Shift mode"; };
    clickRow(page.grd1, 2);
    key("ctrl");
    EXPECT_TRUE(until(on));
    answer([&] { clickRow(page.grd1, 5); }, "OK");
    EXPECT_TRUE(on());
    QMenuBar& menuBar = *window().menuBar();
    click(menuBar, menuBar.actionGeometry(menuBar.actions().first()).center());
    EXPECT_TRUE(until([] { return QApplication::activePopupWidget() != nullptr; }));
    key("Escape");
    EXPECT_TRUE(on());
    clickRow(page.grd1, 1);
    clickRow(page.grd1, 3);
    EXPECT_TRUE(until([&] { return gstrStammNumbers[1].starts_with("3;"); }));
    EXPECT_FALSE(on());
    key("ctrl");
    EXPECT_TRUE(until(on));
    click(page.cmdReset);
    EXPECT_TRUE(until([&] { return !on(); }));
}

TEST_F(PagesTest, TheFavoritesPageIsWorkedByKeyboardAlone) {
    gstrFavorites[1] = "5;9;;;;;";
    keys({"alt+f", "Down", "Down", "Down", "Return"});
    ASSERT_TRUE(until([] { return frmFavorites::ifLoaded() != nullptr; }));
    auto& page = frmFavorites::the();
    EXPECT_TRUE(until([&] { return widget(page.grd1).hasFocus(); }));
    keys({"Tab", "space", "Tab", "Tab", "space"});
    EXPECT_TRUE(page.cmdKey(1).FontBold && page.cmdKey(3).FontBold);
    keys({"space", "Tab", "space", "alt+f"}); // 3 is taken back
    EXPECT_TRUE(until([] { return gstrFavorites[2] == "1;4;;;;;"; }));
    keys({"alt+r", "shift+Tab", "shift+Tab"}); // Reset, then back over File to Grid to the keys
    for (int i = 0; i < 49; ++i)
        key("shift+Tab");
    EXPECT_TRUE(widget(page.grd1).hasFocus());
    keys({"ctrl", "Down", "Return", "Down", "Return"});
    EXPECT_TRUE(until([] { return gstrFavorites[1] == "1;4;;;;;"; }));
    keys({"Up"});
    const auto deleteEntry = [] { keys({"alt", "Right", "Down", "Return"}); };
    EXPECT_EQ(answer(deleteEntry, "&Yes"), "Do you want to delete this row from the grid?");
    EXPECT_TRUE(until([] { return gstrFavorites[1] == "5;9;;;;;"; }));
    key("Escape");
    EXPECT_TRUE(until([] { return !frmFavorites::ifLoaded(); }));
}

TEST_F(PagesTest, AWrongAmountIsRefusedOnceAndOneClickMoreGoesOn) {
    const std::string kRefusal = "Please enter only a Numeric value";
    os.files.content["/sums"];
    auto& page = open<frmBankroll>("bankroll");
    toolkit::TextBox& wins = page.txtWin(1);
    const auto typeWrong = [&] {
        click(wins); // brings the focus, and the whole text is selected
        xdotool({"type", "abc"});
        EXPECT_TRUE(until([&] { return wins.Text.get() == "abc"; }));
    };
    const auto backInTheBox = [&] {
        return until([&] { return widget(wins).hasFocus() && wins.Text.get().empty(); });
    };
    const std::function<void()> ways[] = {
        [&] { click(page.txtWin(3)); },
        [] { key("Tab"); },
        [&] { click(page.cmdCalc); },
        [] { press("lotto"); },
        [&] { click(frmMain::the().cmdJackpot); },
        [&] {
            click(*dynamic_cast<desktop_qt::FormPeer*>(frmMain::the().peer())->window(), {60, 8});
        },
        [&] { click(page.cmdCancel); }};
    for (const auto& way : ways) {
        typeWrong();
        EXPECT_EQ(answer(way, "OK"), kRefusal);
        EXPECT_TRUE(backInTheBox());
        EXPECT_EQ(toolkit::Screen.ActiveForm(), &page);
    }
    EXPECT_FALSE(dynamic_cast<QPushButton&>(widget(page.cmdCancel)).isDown());
    EXPECT_TRUE(os.shell.started.empty());
    click(page.cmdCalc);
    EXPECT_TRUE(until([&] { return os.shell.started.size() == 1; }));
    typeWrong();
    key("Escape");
    EXPECT_TRUE(until([] { return !frmBankroll::ifLoaded(); }));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PagesTest, NoToTheExitQuestionKeepsTheRunAndItsPages) {
    open<frmMain>("lotto");
    EXPECT_EQ(answer([] { key("alt+F4"); }, "&No"), "Exiting Quor Vanta ");
    EXPECT_NE(frmMain::ifLoaded(), nullptr);
    EXPECT_FALSE(os.process.ended);
    EXPECT_FALSE(os.files.exists("/app/Quorvanta.txt"));
}

TEST_F(PagesTest, TheAboutBoxStandsInTheMiddleAndRunsItsFramesUntilADoubleClick) {
    const auto look = [&](auto stop) {
        auto& about = frmAbout::the();
        QWidget& picture = widget(about.pic1);
        const QPoint off =
            picture.window()->frameGeometry().center() - picture.screen()->geometry().center();
        EXPECT_LE(off.manhattanLength(), 2);
        const auto shows = [&](int frame) {
            return about.pic1.Picture.get() == about.imgLogo(frame).Picture.get();
        };
        EXPECT_TRUE(until([&] { return shows(0); }));
        QElapsedTimer clock;
        clock.start();
        EXPECT_TRUE(until([&] { return shows(15); }) && until([&] { return shows(0); }));
        EXPECT_NEAR(static_cast<double>(clock.elapsed()), 2250, 112);
        stop(picture);
        EXPECT_TRUE(until([&] { return os.shell.opened == std::vector{"open " + kHomePage}; }));
        os.shell.opened.clear();
        const toolkit::Bitmap& bitmap = *about.pic1.Picture.get().bitmap();
        QTest::qWait(200);
        EXPECT_EQ(about.pic1.Picture.get().bitmap().get(), &bitmap);
        const QImage image = picture.grab(picture.contentsRect()).toImage();
        for (int i = 0; i < 32 * 32; ++i)
            ASSERT_EQ(image.pixelColor(i % 32, i / 32),
                      desktop_qt::colour(bitmap.pixels[static_cast<std::size_t>(i)]));
        key("alt+o");
    };
    inModal(
        [] {
            keys({"alt+h", "a"});
        },
        [&] { look([](QWidget& at) { click(at, at.rect().center(), 2); }); });
    inModal([] { keys({"alt+h", "a"}); }, [&] { look([](QWidget&) { key("space"); }); });
}

TEST_F(PagesTest, TheLinksOfTheWebsiteDialogCanBeCopiedButNotChangedByAKey) {
    os.shell.answer = 31;
    const auto copied = [] { return QGuiApplication::clipboard()->text().toStdString(); };
    inModal(
        [] {
            keys({"alt+q", "Return"});
        },
        [&] {
            auto& form = frmURL::the();
            keys({"Tab", "x", "BackSpace", "Delete", "ctrl+x", "End", "space", "ctrl+v", "ctrl+c"});
            EXPECT_TRUE(until([&] { return copied() == kProductPage; }));
            auto& second = dynamic_cast<QLineEdit&>(widget(form.Txt2));
            QInputMethodEvent composed;
            composed.setCommitString("\u00E9");
            QCoreApplication::sendEvent(&second, &composed);
            const QPoint at = second.mapToGlobal(second.rect().center());
            xdotool({"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "3"});
            EXPECT_TRUE(until([] { return QApplication::activePopupWidget() != nullptr; }));
            auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
            const auto entries = menu.actions();
            const auto copy = std::ranges::find_if(
                entries, [](const QAction* entry) { return entry->text().startsWith("&Copy"); });
            click(menu, menu.actionGeometry(*copy).center());
            EXPECT_TRUE(until([&] { return copied() == kHomePage; }));
            EXPECT_EQ(form.Txt1.Text.get() + form.Txt2.Text.get(), kProductPage + kHomePage);
            EXPECT_EQ(second.text().toStdString(), kHomePage);
            key("Escape");
            EXPECT_NE(frmURL::ifLoaded(), nullptr);
            key("Return");
        });
    EXPECT_EQ(frmURL::ifLoaded(), nullptr);
}

} // namespace

int main(int argc, char** argv) {
    desktop_qt::QtDesktop desktop(argc, argv);
    toolkit::install(&desktop);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
