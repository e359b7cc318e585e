#include "desktop/qt/ControlPeer.h"

#include <QFrame>

namespace desktop_qt {

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Line& line, QWidget* parent) {
    auto* const rule = new QFrame(parent);
    rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    rule->setMinimumHeight(rule->sizeHint().height()); // a rule has no height of its own
    return std::make_unique<ControlPeer>(line, rule);
}

} // namespace desktop_qt
