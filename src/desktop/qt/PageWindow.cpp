#include "desktop/qt/FormWindow.h"
#include "desktop/qt/Menu.h"

#include <QApplication>
#include <QFontInfo>
#include <QMenu>
#include <QStyle>

namespace desktop_qt {

using toolkit::Form;
using toolkit::Prop;

namespace {

// A page can't be resized, and one that stayed on top would keep the others from coming forward.
void trimWindowMenu(const QMdiSubWindow& page) {
    for (QAction* const entry : page.systemMenu()->actions())
        if (entry->text() == QMdiSubWindow::tr("&Size") ||
            entry->text() == QMdiSubWindow::tr("Ma&ximize") ||
            entry->text() == QMdiSubWindow::tr("Stay on &Top"))
            page.systemMenu()->removeAction(entry);
}

// A theme's font for titles can be so large that a small page's title would be cut to a letter.
void fitTitle(QMdiSubWindow& page) {
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    const int room = page.width() - 3 * page.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    int height = QFontInfo(font).pixelSize();
    do
        font.setPixelSize(height--);
    while (height > 8 && QFontMetrics(font).horizontalAdvance(page.windowTitle()) > room);
    page.setFont(font);
}

class PageWindow final : public FormWindow<QMdiSubWindow> {
public:
    using FormWindow::FormWindow;

protected:
    void changeEvent(QEvent* event) override {
        QMdiSubWindow::changeEvent(event);
        if (auto* const form = shownBy<Form>(this);
            form && event->type() == QEvent::WindowStateChange)
            form->minimized = isMinimized();
    }
    void moveEvent(QMoveEvent* event) override {
        QMdiSubWindow::moveEvent(event);
        if (auto* const form = shownBy<Form>(this)) {
            form->Left.assume(twips(x()));
            form->Top.assume(twips(y()));
        }
    }
};

class PagePeer final : public FormPeer {
public:
    PagePeer(Form& form, PageWindow* page, FrameWindow& frame)
        : FormPeer(form, page), page_(page), frame_(frame) {}
    ~PagePeer() override {
        if (!window_)
            return;
        area().removeSubWindow(page_);
        page_->hide();
        frame_.swapMenus();
    }

    void changed(Prop which) override {
        FormPeer::changed(which);
        if (which == Prop::Caption)
            fitTitle(*page_);
    }

    void placeWindow() override { page_->move(pixels(form_.Left), pixels(form_.Top)); }

    void show() override {
        if (toolkit::Screen.ActiveForm() == &form_)
            focusForm(form_); // or the page would come up with the first of a group of options
        if (page_->isMinimized())
            page_->showNormal();
        else if (page_->isVisible())
            page_->move(rectangle(toolkit::intoView(place(page_->geometry()),
                                                    place(area().viewport()->rect()),
                                                    page_->height() - pixels(form_.clientHeight)))
                            .topLeft());
        else
            page_->show();
    }

    void bringForward() override {
        area().setActiveSubWindow(page_);
        focusForm(form_);
    }

private:
    QMdiArea& area() const { return *frame_.area(); }

    PageWindow* page_;
    FrameWindow& frame_;
};

} // namespace

std::unique_ptr<FormPeer> makePageWindow(Form& form, FrameWindow& frame) {
    auto* const page = new PageWindow(form);
    page->setWidget(makeContent(form, page));
    addMenus(form, *page->widget());
    page->setAttribute(Qt::WA_DeleteOnClose, false);
    // Tab goes round inside the page. On its way over the page's window Qt would keep in mind to
    // move on by one at each return from a message box.
    page->setFocusPolicy(Qt::ClickFocus);
    Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    flags.setFlag(Qt::WindowMinimizeButtonHint, form.MinButton);
    frame.area()->addSubWindow(page, flags);
    trimWindowMenu(*page);
    page->setFixedSize(page->sizeHint());
    form.setBorders(twips(page->width()) - form.clientWidth,
                    twips(page->height()) - form.clientHeight);
    return std::make_unique<PagePeer>(form, page, frame);
}

} // namespace desktop_qt
