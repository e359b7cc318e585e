#include "desktop/qt/FormWindow.h"
#include "desktop/qt/Menu.h"

#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

namespace desktop_qt {

using toolkit::Form;

FrameWindow::FrameWindow(Form& form) : FormWindow(form), area_(new QMdiArea(this)) {
    setContextMenuPolicy(Qt::PreventContextMenu); // the toolbar stays
    area_->setBackground({});
    area_->viewport()->setAutoFillBackground(true);
    area_->viewport()->setBackgroundRole(QPalette::Dark); // also of the user's next theme
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    makePeers(form, this);
    for (toolkit::Control* control : form.controls())
        if (auto* const toolbar = qobject_cast<QToolBar*>(widgetOf(*control)))
            addToolBar(toolbar);
        else if (auto* const status = qobject_cast<QStatusBar*>(widgetOf(*control)))
            setStatusBar(status);
    addMenus(form, *this);
    swapMenus();
    resize(pixels(form.clientWidth), pixels(form.clientHeight) + menuBar()->sizeHint().height());
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* page) {
        if (Form* const active = shownBy<Form>(page))
            toolkit::Screen.activated(*active);
        swapMenus();
    });
    new QShortcut(Qt::ALT | Qt::Key_Minus, this, [this] {
        if (QMdiSubWindow* const page = area_->currentSubWindow())
            page->showSystemMenu();
    });
}

void FrameWindow::swapMenus() {
    const QMdiSubWindow* const page = area_->currentSubWindow();
    const QList<QAction*> menus = (shownBy<Form>(page) ? page->widget() : this)->actions();
    if (menuBar()->actions() == menus)
        return;
    for (QAction* old : menuBar()->actions())
        menuBar()->removeAction(old);
    menuBar()->addActions(menus);
}

bool FrameWindow::event(QEvent* event) {
    const bool known = QMainWindow::event(event);
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        takeGeometry();
    return known;
}

void FrameWindow::takeGeometry() {
    auto* const form = shownBy<Form>(this);
    if (!form || !isVisible())
        return;
    const QSize borders = frameGeometry().size() - size();
    if (!windowBorders.isNull() || borders.isNull() || isMaximized())
        return peerOf(form)->moved();
    // It was placed without them: its middle stays where the program has put it.
    windowBorders = borders;
    const double width = twips(borders.width()), height = twips(borders.height());
    form->Left.assume(form->Left - width / 2);
    form->Top.assume(form->Top - height / 2);
    form->Width.assume(form->Width + width);
    form->Height.assume(form->Height + height);
    peerOf(form)->placeWindow();
}

std::unique_ptr<FormPeer> makeFrameWindow(Form& form) {
    auto* const window = new FrameWindow(form);
    form.setBorders(0, twips(window->menuBar()->sizeHint().height()));
    return std::make_unique<FormPeer>(form, window);
}

} // namespace desktop_qt
