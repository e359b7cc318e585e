#include "desktop/qt/ControlPeer.h"

#include <QAction>
#include <QToolBar>

namespace desktop_qt {

namespace {

constexpr QSize kImageSize(32, 32);
constexpr QSize kButtonSize(39, 38);

class ToolbarPeer final : public ControlPeer {
public:
    ToolbarPeer(toolkit::Toolbar& bar, QToolBar* widget) : ControlPeer(bar, widget) {
        widget->setIconSize(kImageSize);
        widget->setMovable(false);
        widget->setContextMenuPolicy(Qt::PreventContextMenu); // it can't be hidden
        widget->setFixedHeight(pixels(bar.Height));
        for (const toolkit::ToolbarButton& button : bar.Buttons) {
            if (button.Key.empty()) {
                widget->addSeparator();
                continue;
            }
            const auto image = static_cast<std::size_t>(button.Image - 1);
            QAction* const action = widget->addAction(iconOf(bar.Images->ListImages.at(image)),
                                                      text(button.ToolTipText));
            action->setObjectName(text(button.Key));
            widget->widgetForAction(action)->setFixedSize(kButtonSize);
            QObject::connect(action, &QAction::triggered, widget,
                             [&bar, button] { bar.clickButton(button); });
        }
    }
};

} // namespace

std::unique_ptr<ControlPeer> makeToolbar(toolkit::Toolbar& bar, QWidget* parent) {
    return std::make_unique<ToolbarPeer>(bar, new QToolBar(parent));
}

} // namespace desktop_qt
