#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/Menu.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

namespace desktop_qt {

using toolkit::Form;

FrameWindow::FrameWindow(Form& form) : FormWindow(form), area_(new QMdiArea(this)) {
    setContextMenuPolicy(Qt::PreventContextMenu); // the toolbar stays
    showBackground();
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    makePeers(form, this);
    for (toolkit::Control* control : form.controls())
        if (auto* const toolbar = qobject_cast<QToolBar*>(widgetOf(*control)))
            addToolBar(toolbar);
        else if (auto* const status = qobject_cast<QStatusBar*>(widgetOf(*control)))
            setStatusBar(status);
    menus_ = makeMenus(form, this);
    swapMenus();
    resize(pixels(form.clientWidth), pixels(form.clientHeight) + menuBar()->sizeHint().height());
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* page) {
        if (Form* const active = formOf(page))
            toolkit::Screen.activated(*active);
        swapMenus();
    });
}

void FrameWindow::swapMenus() {
    const QMdiSubWindow* const page = area_->currentSubWindow();
    const QList<QAction*>& menus = formOf(page) ? menusOf(*page) : menus_;
    if (menuBar()->actions() == menus)
        return;
    for (QAction* old : menuBar()->actions())
        menuBar()->removeAction(old);
    menuBar()->addActions(menus);
}

void FrameWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showBackground(); // the user's theme has changed
}

void FrameWindow::showBackground() {
    area_->setBackground(palette().brush(QPalette::Dark));
}

void FrameWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    takeGeometry();
}

void FrameWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    takeGeometry();
}

void FrameWindow::takeGeometry() {
    Form* const form = formOf(this);
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
