#include "desktop/qt/ControlPeer.h"

#include <QPushButton>

namespace desktop_qt {

std::unique_ptr<toolkit::Peer> makePeer(toolkit::CommandButton& button, QWidget* parent) {
    auto* const widget = new QPushButton(parent);
    auto peer = std::make_unique<ControlPeer>(button, widget, "text");
    QObject::connect(widget, &QPushButton::clicked, &peer->listener, [&button] { button.click(); });
    return peer;
}

} // namespace desktop_qt
