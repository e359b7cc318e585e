#include "desktop/qt/ControlPeer.h"

#include <QPushButton>

namespace desktop_qt {

namespace {

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
    return std::make_unique<CommandButtonPeer>(button, new QPushButton(parent));
}

} // namespace desktop_qt
