// How long the boards take from what the user does to their painted picture on the screen, in real
// windows and the real event loop: a draw, a click on a row, a page that opens.
// Usage: board_bench [turns]
#include "bench/Figures.h"
#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/QtDesktop.h"
#include "frame/MDIForm1.h"
#include "frame/Navigation.h"
#include "frame/modConstants.h"
#include "lists/frmCustomize6.h"
#include "numbers/cLotto.h"
#include "numbers/frmMain.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <set>

#include <xcb/xcb.h>

namespace {

using namespace bench;
using namespace std::chrono_literals;
using desktop_qt::widgetOf;
using quorvanta::frmCustomize6;
using quorvanta::frmMain;
using quorvanta::MDIForm1;
using Clock = std::chrono::steady_clock;

constexpr double kBoardTime = 16;   // milliseconds
constexpr double kOpeningTime = 50; // milliseconds more than an empty child window takes

// Which widgets have been painted since the last reset.
class Painted : public QObject {
public:
    void reset() { widgets_.clear(); }
    bool has(const QWidget* widget) const { return widgets_.contains(widget); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            widgets_.insert(watched);
        return false;
    }

private:
    std::set<const QObject*> widgets_;
};

Painted painted;

// The X server has done all that it was asked for.
void finishOnScreen() {
    auto* const display = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    std::free(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
}

// Runs the event loop until `done`, and the picture is on the screen.
double millisecondsUntil(const std::function<void()>& action, const std::function<bool()>& done) {
    // The work that the turn before has left.
    for (const auto end = Clock::now() + 10ms; Clock::now() < end;)
        QCoreApplication::processEvents();
    finishOnScreen();
    painted.reset();
    const auto start = Clock::now();
    action();
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    finishOnScreen();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Through the window, as the system's own clicks come.
void postClick(QWidget* widget, QPoint at) {
    const auto click = [widget, at] {
        const QWidget* const window = widget->window();
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, at));
    };
    QMetaObject::invokeMethod(widget, click, Qt::QueuedConnection);
}

using Board = toolkit::ControlArray<toolkit::Label>;

// What the board shows: the colour of each number, -1 for one out of the pool.
std::vector<int> look(const Board& board) {
    std::vector<int> looks;
    for (int n = 1; n <= quorvanta::kNumbers; ++n)
        looks.push_back(board(n).Enabled ? board(n).ForeColor.get() : -1);
    return looks;
}

// Whether the board looks otherwise than `before`, with every changed number painted.
bool changedAndPainted(const Board& board, const std::vector<int>& before) {
    const auto now = look(board);
    bool changed = false;
    for (int n = 1; n <= quorvanta::kNumbers; ++n) {
        const auto i = static_cast<std::size_t>(n - 1);
        if (now[i] == before[i])
            continue;
        changed = true;
        if (!painted.has(widgetOf(board(n))))
            return false;
    }
    return changed;
}

double boardChange(const Board& board, const std::function<void()>& action) {
    const auto before = look(board);
    return millisecondsUntil(action, [&] { return changedAndPainted(board, before); });
}

// The rows 1 and 2 have seven numbers each, row 3 all 49.
void fillRows() {
    quorvanta::gstrStammNumbers[1] = "3;7;12;25;33;41;48;";
    quorvanta::gstrStammNumbers[2] = "1;8;19;23;34;40;49;";
    for (int row = 1; row <= 2; ++row)
        quorvanta::gstrStammNumbers[static_cast<std::size_t>(row)] += std::string(42, ';');
    for (int n = 1; n <= quorvanta::kNumbers; ++n)
        quorvanta::gstrStammNumbers[3] += std::to_string(n) + ";";
}

Figures numberBoard(int turns) {
    frmMain& page = frmMain::the();
    page.Show();
    Figures figures;
    for (int i = 0; i < turns; ++i)
        figures.add(boardChange(page.lbl1, [&] {
            QWidget* const button = widgetOf(page.cmdJackpot);
            postClick(button, button->rect().center());
        }));
    page.Unload();
    return figures;
}

void clickRow(frmCustomize6& page, int row) {
    auto* const view = qobject_cast<QTableView*>(widgetOf(page.grd1));
    postClick(view->viewport(), {20, view->rowViewportPosition(row - 1) + 3});
}

// Between a row of seven and the row of all 49, the greatest change that a click makes.
Figures rowClick(int turns) {
    frmCustomize6& page = frmCustomize6::the();
    page.Show();
    boardChange(page.Label1, [&] { clickRow(page, 1); });
    Figures figures;
    for (int i = 0; i < turns; ++i)
        figures.add(boardChange(page.Label1, [&] { clickRow(page, i % 2 == 0 ? 3 : 1); }));
    page.Unload();
    return figures;
}

struct Draw {
    Figures engine, click; // the draw alone; the click on the button until the board is painted
};

Draw customDraw(int turns) {
    frmCustomize6& page = frmCustomize6::the();
    page.Show();
    Draw figures;
    for (int i = 0; i < turns; ++i) {
        boardChange(page.Label1, [&] { clickRow(page, i % 2 + 1); });
        figures.click.add(boardChange(page.Label1, [&] {
            QWidget* const button = widgetOf(page.cmdJackpot);
            postClick(button, button->rect().center());
        }));
        boardChange(page.Label1, [&] { clickRow(page, 3); });
        boardChange(page.Label1, [&] { clickRow(page, i % 2 + 1); });
        quorvanta::cLotto lotto;
        lotto.prpControl.Set(page.Label1.ref());
        const auto start = Clock::now();
        lotto.prpActionToDo = quorvanta::cLotto::DrawFromEnabled;
        figures.engine.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    page.Unload();
    return figures;
}

struct Opening {
    double first = 0;
    Figures page, empty;
};

double openPage() {
    return millisecondsUntil(quorvanta::mnuCustomize_Click, [] {
        const frmCustomize6* const page = frmCustomize6::ifLoaded();
        const auto* const grid = page ? qobject_cast<QTableView*>(widgetOf(page->grd1)) : nullptr;
        return grid && painted.has(grid->viewport()) && painted.has(widgetOf(page->Label1(49))) &&
               painted.has(widgetOf(page->cmdKey(49)));
    });
}

double openEmpty(QMdiArea& area, QSize size) {
    auto* const content = new QWidget;
    content->setFixedSize(size);
    auto* const child = new QMdiSubWindow;
    child->setWidget(content);
    const double time = millisecondsUntil(
        [&] {
            area.addSubWindow(child)->show();
            area.setActiveSubWindow(child);
        },
        [&] { return painted.has(content); });
    delete child;
    return time;
}

// The page as often as an empty child window of its size, in turns.
Opening opening(int turns) {
    auto* const area = widgetOf(MDIForm1::the().tlbar1)->window()->findChild<QMdiArea*>();
    const QSize size(desktop_qt::pixels(frmCustomize6::the().clientWidth),
                     desktop_qt::pixels(frmCustomize6::the().clientHeight));
    Opening figures;
    openEmpty(*area, size);
    for (int i = 0; i < turns; ++i) {
        const double time = openPage();
        frmCustomize6::the().Unload();
        if (i == 0)
            figures.first = time;
        figures.page.add(time);
        figures.empty.add(openEmpty(*area, size));
    }
    return figures;
}

bool measure(int turns) {
    fillRows();
    const Opening open = opening(turns);
    const Figures jackpot = numberBoard(turns);
    const Figures row = rowClick(turns);
    const Draw draw = customDraw(turns);

    tell("open Customize 6", open.page, "ms");
    tell("open an empty child window", open.empty, "ms");
    tell("click on Generate Jackpot to painted board", jackpot, "ms");
    tell("click on a row to painted board", row, "ms");
    tell("draw from a row of seven", draw.engine, "ms");
    tell("click on Jackpot Generator to painted board", draw.click, "ms");
    bool kept = keeps("opening Customize 6, more than an empty child",
                      open.page.median() - open.empty.median(), kOpeningTime);
    kept &=
        keeps("the same, the first time in a run", open.first - open.empty.median(), kOpeningTime);
    kept &= keeps("Generate Jackpot to painted board, 95%", jackpot.at(0.95), kBoardTime);
    kept &= keeps("a row to painted board, 95%", row.at(0.95), kBoardTime);
    kept &= keeps("draw from a row of seven, 95%", draw.engine.at(0.95), kBoardTime);
    return kept;
}

} // namespace

int main(int argc, char** argv) {
    const int turns = argc > 1 ? std::atoi(argv[1]) : 200;
    const tests::FakePlatform system;
    desktop_qt::QtDesktop desktop;
    toolkit::install(&desktop);
    MDIForm1::the().Show();
    qApp->installEventFilter(&painted);
    bool kept = false;
    // Late enough for the frame to be on the screen.
    QTimer::singleShot(500, qApp, [&] {
        kept = measure(turns);
        tests::dropForms();
        QCoreApplication::quit();
    });
    desktop.run();
    return kept ? 0 : 1;
}
