// The program's dialogs as real windows on a real X server: the mouse and the keyboard are those of
// xdotool.
#include "common/MakerSite.h"
#include "common/frmURL.h"
#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/QtDesktop.h"
#include "desktop/qt/Windows.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
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

class DialogsTest : public ::testing::Test {
protected:
    FakePlatform os;

    DialogsTest() {
        MDIForm1::the().Show();
        const auto* peer = dynamic_cast<desktop_qt::FormPeer*>(MDIForm1::the().peer());
        EXPECT_TRUE(until([&] { return peer->window()->isActiveWindow(); }));
    }
    ~DialogsTest() override {
        toolkit::Form::dropAll();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(DialogsTest, TheAboutBoxStandsInTheMiddleAndRunsItsFramesUntilADoubleClick) {
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

TEST_F(DialogsTest, TheLinksOfTheWebsiteDialogCanBeCopiedButNotChangedByAKey) {
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
