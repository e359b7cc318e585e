#include "desktop/qt/ControlPeer.h"

#include <QGroupBox>

namespace desktop_qt {

namespace {

class FramePeer final : public ControlPeer {
public:
    FramePeer(toolkit::Frame& frame, QGroupBox* widget) : ControlPeer(frame, widget), box_(widget) {
        showCaption();
    }

    void showCaption() override { box_->setTitle(text(control_.Caption)); }

private:
    QGroupBox* box_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Frame& frame, QWidget* parent) {
    return std::make_unique<FramePeer>(frame, new QGroupBox(parent));
}

} // namespace desktop_qt
