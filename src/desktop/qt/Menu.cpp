#include "desktop/qt/Menu.h"

#include "desktop/qt/Look.h"

#include <QAction>
#include <QMenu>

namespace desktop_qt {

namespace {

class MenuPeer final : public toolkit::Peer {
public:
    MenuPeer(toolkit::Menu& menu, QAction* action) : menu_(menu), action_(action) {
        action->setObjectName(text(menu.name()));
        action->setSeparator(menu.isSeparator());
        action->setShortcut(QKeySequence(text(menu.Shortcut)));
        action->setShortcutContext(Qt::WidgetShortcut); // only shown: the toolkit presses it
        follow();
        QObject::connect(action, &QAction::triggered, &listener_, [this] {
            follow(); // Qt has turned the check mark round; turning it is the program's
            menu_.click();
        });
    }

    void changed(toolkit::Prop /*which*/) override { follow(); }

private:
    void follow() {
        if (!menu_.isSeparator()) // a separator with a text is shown as a heading
            action_->setText(text(menu_.Caption));
        action_->setEnabled(menu_.Enabled);
        action_->setVisible(menu_.Visible);
        if (menu_.Checked)
            action_->setCheckable(true);
        action_->setChecked(menu_.Checked);
    }

    toolkit::Menu& menu_;
    QAction* action_;
    QObject listener_; // the action outlives the peer for a while
};

QAction* makeAction(toolkit::Menu& menu, QWidget* parent) {
    QAction* action = nullptr;
    if (menu.entries().empty()) {
        action = new QAction(parent);
    } else {
        auto* const popup = new QMenu(parent);
        for (toolkit::Menu* entry : menu.entries())
            popup->addAction(makeAction(*entry, popup));
        action = popup->menuAction();
    }
    menu.attach(std::make_unique<MenuPeer>(menu, action));
    return action;
}

} // namespace

void addMenus(toolkit::Form& form, QWidget& widget) {
    for (toolkit::Menu* menu : form.menuBar())
        widget.addAction(makeAction(*menu, &widget));
}

} // namespace desktop_qt
