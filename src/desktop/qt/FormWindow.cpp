#include "desktop/qt/FormWindow.h"

#include "toolkit/Focus.h"

#include <QGuiApplication>
#include <QScreen>

namespace desktop_qt {

using toolkit::Form;
using toolkit::Prop;

namespace {

// Windows of their own stand on the primary screen, which need not be the leftmost.
QPoint screenOrigin() {
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

} // namespace

QSize windowBorders(0, 0);

void focusForm(Form& form) {
    if (const toolkit::Control* const target = toolkit::focusTarget(form))
        giveFocus(*widgetOf(*target));
}

QWidget* makeContent(Form& form, QWidget* parent) {
    auto* const content = new QWidget(parent);
    content->setFixedSize(pixels(form.clientWidth), pixels(form.clientHeight));
    if (form.BackColor != toolkit::kThemeColour) {
        QPalette palette;
        palette.setColor(QPalette::Window, colour(form.BackColor));
        content->setPalette(palette);
        content->setAutoFillBackground(true);
    }
    makePeers(form, content);
    return content;
}

FormPeer::~FormPeer() {
    if (!window_)
        return;
    mark(*window_, nullptr);
    window_->hide();
    window_->deleteLater(); // an event of the window may be running
}

void FormPeer::changed(Prop which) {
    switch (which) {
    case Prop::Caption:
        return window_->setWindowTitle(text(form_.Caption));
    case Prop::Left:
    case Prop::Top:
        return placeWindow();
    default:
        return;
    }
}

void FormPeer::placeWindow() {
    const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect shown = rectangle(
        place_.within(place(free.translated(-screenOrigin())), form_, toolkit::kTwipsPerPixel));
    if (form_.kind == Form::Kind::MDIFrame)
        window_->resize(shown.size() - windowBorders);
    window_->move(shown.topLeft() + screenOrigin());
}

void FormPeer::moved() {
    place_.moved(place(window_->frameGeometry().translated(-screenOrigin())), form_,
                 toolkit::kTwipsPerPixel);
}

void FormPeer::show() {
    window_->show();
    window_->raise();
    window_->activateWindow();
    focusForm(form_);
}

FormPeer* peerOf(const Form* form) {
    return form ? dynamic_cast<FormPeer*>(form->peer()) : nullptr;
}

} // namespace desktop_qt
