#include "desktop/qt/FormWindow.h"

#include "desktop/qt/ControlPeer.h"
#include "toolkit/Focus.h"

#include <QGuiApplication>
#include <QScreen>

namespace desktop_qt {

using toolkit::Form;
using toolkit::Prop;

namespace {

constexpr const char* kForm = "toolkitForm"; // the property that holds a window's form

// Windows of their own stand on the primary screen, which need not be the leftmost.
QPoint screenOrigin() {
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

} // namespace

QSize windowBorders(0, 0);

void mark(QWidget& window, Form& form) {
    window.setObjectName(text(form.name()));
    window.setProperty(kForm, QVariant::fromValue<void*>(&form));
}

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
    for (const toolkit::Control* control : form.controls())
        if (QWidget* const widget = widgetOf(*control); widget && !toolkit::standsOnForm(*control))
            widget->setFocusPolicy(Qt::NoFocus);
    return content;
}

FormPeer::~FormPeer() {
    if (!window_)
        return;
    window_->setProperty(kForm, {});
    window_->hide();
    window_->deleteLater(); // an event of the window may be running
}

void FormPeer::changed(Prop which) {
    switch (which) {
    case Prop::Caption:
        return window_->setWindowTitle(text(form_.Caption));
    case Prop::Left:
    case Prop::Top:
        if (window_->isWindow())
            placeWindow();
        else
            window_->move(pixels(form_.Left), pixels(form_.Top));
        return;
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

Form* formOf(const QWidget* window) {
    const QVariant form = window ? window->property(kForm) : QVariant();
    return form.isValid() ? static_cast<Form*>(form.value<void*>()) : nullptr;
}

} // namespace desktop_qt
