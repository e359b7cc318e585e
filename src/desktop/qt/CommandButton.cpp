#include "desktop/qt/ControlPeer.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPushButton>

namespace desktop_qt {

namespace {

// Where the focus that a press moves brings up a message box, the button learns of the press when
// the mouse is long released and no release will follow: such a press is none.
class Button final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (QGuiApplication::mouseButtons().testFlag(event->button()))
            QPushButton::mousePressEvent(event);
    }
};

class CommandButtonPeer final : public ControlPeer {
public:
    CommandButtonPeer(toolkit::CommandButton& button, QPushButton* widget)
        : ControlPeer(button, widget), widget_(widget) {
        QObject::connect(widget, &QPushButton::clicked, &listener_, [this] { control_.click(); });
        showCaption();
    }

    void showCaption() override { widget_->setText(text(control_.Caption)); }

private:
    QPushButton* widget_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::CommandButton& button, QWidget* parent) {
    return std::make_unique<CommandButtonPeer>(button, new Button(parent));
}

} // namespace desktop_qt
