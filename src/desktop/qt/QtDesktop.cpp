#include "desktop/qt/QtDesktop.h"

#include "desktop/help/HelpViewer.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/Style.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QEventLoop>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <array>

namespace desktop_qt {

using toolkit::Control;
using toolkit::Form;

namespace {

constexpr int kExposeTime = 250; // milliseconds that a window gets to come up

// Lets the window come up on the screen. Nothing of the program runs meanwhile: what the user does
// stays in the queue, and timers are held.
void waitUntilShown(QWidget& window) {
    QTimer wake;
    wake.setSingleShot(true);
    wake.start(kExposeTime);
    while (wake.isActive() && window.windowHandle() && !window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    window.repaint();
}

// Where the focus that a press moves brings up a message box, the widget would learn of the press
// when the mouse is long released and no release will follow: such a press is none.
bool comesLate(const QMouseEvent& press) {
    return press.spontaneous() && !QGuiApplication::mouseButtons().testFlag(press.button());
}

} // namespace

QApplication& QtDesktop::application() {
    if (application_)
        return *application_;
    QApplication::setApplicationName(QStringLiteral("quorvanta"));
    QApplication::setDesktopFileName(QStringLiteral("example.zephyrwick.quorvanta"));
    // The command line is not read, by the library neither: all that it gets is the program's name.
    static std::string program = toolkit::App.Path + "/quorvanta";
    static std::array<char*, 2> arguments{program.data(), nullptr};
    static int count = 1;
    application_ = std::make_unique<QApplication>(count, arguments.data());
    QApplication::setStyle(new Style);
    // The texts are English whatever the locale is, and a board reads 1, 2, 3 from the left.
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setWindowIcon(iconOf("quorvanta")); // one for all windows
    application_->setQuitOnLastWindowClosed(false);   // the list of loaded forms decides
    QApplication::setCursorFlashTime(0);              // a blinking caret is work while idle
    application_->installEventFilter(this);
    connect(application_.get(), &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        Control* const control = controlOf(now);
        showFocusOn(control);
        if (control)
            toolkit::Screen.focusMovedBySystem(*control);
    });
    platform::current().process.whenDisplayEnds(displayEnds);
    return *application_;
}

// A text box shows by its caret and its selection that it has the focus.
void QtDesktop::showFocusOn(const Control* control) {
    const bool ringed = control && !dynamic_cast<const toolkit::TextBox*>(control);
    if (!ring_)
        ring_ = new QFocusFrame;
    ring_->setWidget(ringed ? widgetOf(*control) : nullptr);
}

FrameWindow* QtDesktop::frame() const {
    const FormPeer* const peer = peerOf(toolkit::Forms.frame());
    return peer ? dynamic_cast<FrameWindow*>(peer->window()) : nullptr;
}

// All windows of the program stand on the frame but the guide, which can be read on.
Qt::WindowModality QtDesktop::modality() const {
    return frame() ? Qt::WindowModal : Qt::ApplicationModal;
}

void QtDesktop::open(Form& form) {
    application();
    form.hWnd = ++lastHandle_;
    if (form.kind == Form::Kind::MDIFrame)
        form.attach(makeFrameWindow(form));
    else if (FrameWindow* const around = frame(); around && form.kind == Form::Kind::MDIChild)
        form.attach(makePageWindow(form, *around));
    else
        form.attach(makeTopLevelWindow(form));
}

void QtDesktop::show(Form& form, bool modal) {
    FormPeer* const peer = peerOf(&form);
    if (!peer)
        return;
    const QPointer<QWidget> window = peer->window();
    if (modal) {
        window->setWindowModality(modality());
        window->winId();
        if (const FrameWindow* const below = frame())
            window->windowHandle()->setTransientParent(below->windowHandle());
    }
    {
        const toolkit::TimersHeld untilShown;
        peer->show();
        if (!modal && form.kind == Form::Kind::TopLevel)
            waitUntilShown(*window);
    }
    if (modal) {
        QEventLoop loop;
        connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

void QtDesktop::bringForward(Form& form) {
    if (FormPeer* const peer = peerOf(&form))
        peer->bringForward();
}

void QtDesktop::focus(Control& control) {
    QWidget* const widget = widgetOf(control);
    if (!widget)
        return;
    giveFocus(*widget);
    // Just behind a message box the window isn't in front again, and Qt tells of the move later.
    if (widget->isVisible() && widget->window()->focusWidget() == widget)
        toolkit::Screen.focusMoved(control);
}

void QtDesktop::doEvents() {
    QCoreApplication::processEvents();
}

toolkit::Place QtDesktop::screen() {
    application();
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {0, 0, twips(size.width()), twips(size.height())};
}

bool QtDesktop::WinHelpA(std::uintptr_t window, const char* file, unsigned command,
                         std::uintptr_t /*data*/) {
    if (command != platform::HELP_TAB)
        return false;
    application();
    const FormPeer* const owner = peerOf(toolkit::Forms.withWindow(window));
    desktop_help::showHelp(owner ? owner->window() : nullptr, QString::fromUtf8(file));
    return true;
}

bool QtDesktop::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Quit:
        if (watched != application_.get())
            return false;
        sessionEnds(); // Qt would close the windows, as the user does, with a question
        return true;
    case QEvent::MouseButtonPress:
        return watched->isWidgetType() && comesLate(static_cast<const QMouseEvent&>(*event));
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return watched->isWindowType() &&
               takeKey(static_cast<QWindow&>(*watched), static_cast<QKeyEvent&>(*event));
    default:
        return false;
    }
}

} // namespace desktop_qt
