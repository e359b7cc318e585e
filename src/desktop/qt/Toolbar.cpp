#include "desktop/qt/ControlPeer.h"

#include <QAction>
#include <QToolBar>

namespace desktop_qt {

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Toolbar& bar, QWidget* parent) {
    auto* const widget = new QToolBar(parent);
    auto peer = std::make_unique<ControlPeer>(bar, widget);
    widget->setIconSize({bar.kImage, bar.kImage});
    widget->setMovable(false);
    widget->setContextMenuPolicy(Qt::PreventContextMenu); // it can't be hidden
    widget->setFixedHeight(pixels(bar.Height));
    for (const toolkit::ToolbarButton& button : bar.Buttons) {
        if (button.Key.empty()) {
            widget->addSeparator();
            continue;
        }
        const auto image = static_cast<std::size_t>(button.Image - 1);
        QAction* const action =
            widget->addAction(iconOf(bar.Images->ListImages.at(image)), text(button.ToolTipText));
        action->setObjectName(text(button.Key));
        widget->widgetForAction(action)->setFixedSize(bar.kButtonWidth, bar.kButtonHeight);
        QObject::connect(action, &QAction::triggered, &peer->listener,
                         [&bar, button] { bar.clickButton(button); });
    }
    return peer;
}

} // namespace desktop_qt
