#include "desktop/qt/ControlPeer.h"

#include <QGroupBox>

namespace desktop_qt {

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Frame& frame, QWidget* parent) {
    return std::make_unique<ControlPeer>(frame, new QGroupBox(parent), "title");
}

} // namespace desktop_qt
