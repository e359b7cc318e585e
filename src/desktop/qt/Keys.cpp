// How a key goes from a window of Qt's to the toolkit.
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/QtDesktop.h"
#include "toolkit/Keyboard.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWindow>

namespace desktop_qt {

using toolkit::Form;

namespace {

int keyCode(const QKeyEvent& event) {
    static const QHash<int, int> kCodes{
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
        {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
        {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
        {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},
        {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
        {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},   {Qt::Key_NumLock, 144}};
    const int key = event.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F16)
        return 112 + key - Qt::Key_F1;
    // A key without a code of its own keeps one that is not 0, since 0 means a dropped key.
    return kCodes.value(key, key < 0x100 ? qMax(1, key) : 0xFF);
}

// A held key that repeats counts itself too.
int shiftMask(const QKeyEvent& event) {
    // The event's own modifiers() turns the bit of a modifier key round, which is wrong for one
    // that repeats.
    const Qt::KeyboardModifiers before = event.QInputEvent::modifiers();
    const int key = event.key();
    int mask = 0;
    if (before.testFlag(Qt::ShiftModifier) || key == Qt::Key_Shift)
        mask |= toolkit::ShiftDown;
    if (before.testFlag(Qt::ControlModifier) || key == Qt::Key_Control)
        mask |= toolkit::CtrlDown;
    if (before.testFlag(Qt::AltModifier) || key == Qt::Key_Alt)
        mask |= toolkit::AltDown;
    return mask;
}

int character(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Delete || event.modifiers().testFlag(Qt::AltModifier))
        return 0;
    const QList<uint> typed = event.text().toUcs4();
    return typed.isEmpty() ? 0 : static_cast<int>(typed.first());
}

toolkit::KeyStroke keyStroke(const QKeyEvent& event) {
    return {.code = keyCode(event),
            .shift = shiftMask(event),
            .character = character(event),
            .repeats = event.isAutoRepeat(),
            .copies = event.matches(QKeySequence::Copy)};
}

// The form that the keys of the window go to, or nullptr.
Form* formWithKeys(const QWindow& window) {
    // Keys belong to an open menu, to the menu bar, and to a window that they move.
    if (QApplication::activePopupWidget() || QWidget::mouseGrabber() ||
        qobject_cast<QMenuBar*>(QApplication::focusWidget()))
        return nullptr;
    if (const toolkit::Control* const focused = controlOf(QApplication::focusWidget()))
        return &focused->form();
    const QWidget* const widget = QWidget::find(window.winId());
    const auto* const frame = dynamic_cast<const FrameWindow*>(widget);
    Form* const page = frame ? shownBy<Form>(frame->area()->currentSubWindow()) : nullptr;
    return page ? page : shownBy<Form>(widget);
}

} // namespace

// Every key goes through the window before the widget with the focus, once. Keys of a message box
// or an opened menu go to windows of their own.
bool QtDesktop::takeKey(const QWindow& window, QKeyEvent& key) {
    Form* const form = formWithKeys(window);
    if (!form)
        return false;
    if (key.type() == QEvent::KeyPress)
        return toolkit::pressKey(*form, keyStroke(key));
    if (!toolkit::comesBeforeMenus(*form, keyStroke(key)))
        return false;
    key.accept();
    return true;
}

} // namespace desktop_qt
