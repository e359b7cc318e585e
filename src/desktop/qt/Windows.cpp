#include "desktop/qt/Windows.h"

#include "desktop/qt/Accessibility.h"
#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/Menu.h"
#include "toolkit/Focus.h"
#include "toolkit/Placement.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontInfo>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

namespace desktop_qt {

using toolkit::Form;
using toolkit::Prop;

namespace {

constexpr const char* kForm = "toolkitForm"; // the property that holds a window's form

// What the window manager puts around a window. It is known once it has shown the frame.
QSize windowBorders(0, 0);

void mark(QWidget* window, Form& form) {
    window->setObjectName(text(form.name()));
    window->setProperty(kForm, QVariant::fromValue<void*>(&form));
}

// Top-level windows stand on the primary screen, which need not be the leftmost.
QPoint screenOrigin() {
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

toolkit::Place place(const QRect& area) {
    return {1.0 * area.x(), 1.0 * area.y(), 1.0 * area.width(), 1.0 * area.height()};
}

QRect rectangle(const toolkit::Place& area) {
    return QRectF(area.Left, area.Top, area.Width, area.Height).toRect();
}

// Shows a window of its own where the form wants it, but within reach on its screen. Gives the
// place that its frame then has.
QRect placeOnScreen(QWidget& window, const Form& form) {
    const QRect wanted =
        QRect(pixels(form.Left), pixels(form.Top), pixels(form.Width), pixels(form.Height))
            .translated(screenOrigin());
    const bool canBeResized = form.kind == Form::Kind::MDIFrame;
    const QRect shown = rectangle(toolkit::insideArea(
        place(wanted), place(QGuiApplication::primaryScreen()->availableGeometry()), canBeResized));
    if (canBeResized)
        window.resize(shown.size() - windowBorders);
    window.move(shown.topLeft());
    return shown;
}

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

void focusForm(Form& form) {
    if (const toolkit::Control* const target = toolkit::focusTarget(form))
        giveFocus(*widgetOf(*target));
}

QWidget* makeContent(Form& form, QWidget* parent) {
    auto* const content = new QWidget(parent);
    content->setFixedSize(pixels(form.clientWidth), pixels(form.clientHeight));
    if (form.BackColor != toolkit::kThemeColour) {
        QPalette palette;
        palette.setColor(QPalette::Window, colour(form.BackColor));
        content->setPalette(palette);
        content->setAutoFillBackground(true);
    }
    makePeers(form, content);
    for (const toolkit::Control* control : form.controls())
        if (QWidget* const widget = widgetOf(*control); widget && !toolkit::standsOnForm(*control))
            widget->setFocusPolicy(Qt::NoFocus);
    return content;
}

class PageWindow final : public QMdiSubWindow {
public:
    explicit PageWindow(Form& form) : form_(form) {}

    void setMenus(const QList<QAction*>& menus) { menus_ = menus; }
    const QList<QAction*>& menus() const { return menus_; }

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore(); // unloading the form takes the window away
        if (property(kForm).isValid())
            form_.Unload(toolkit::FormControlMenu);
    }
    void changeEvent(QEvent* event) override {
        QMdiSubWindow::changeEvent(event);
        if (event->type() == QEvent::WindowStateChange && property(kForm).isValid())
            form_.minimized = isMinimized();
    }
    void moveEvent(QMoveEvent* event) override {
        QMdiSubWindow::moveEvent(event);
        if (property(kForm).isValid()) {
            form_.Left.assume(twips(x()));
            form_.Top.assume(twips(y()));
        }
    }

private:
    Form& form_;
    QList<QAction*> menus_;
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

class TopLevelWindow final : public QWidget {
public:
    explicit TopLevelWindow(Form& form)
        : QWidget(nullptr, form.Borderless
                               ? Qt::SplashScreen
                               : Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                     Qt::WindowCloseButtonHint),
          form_(form) {}

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        if (property(kForm).isValid())
            form_.Unload(toolkit::FormControlMenu);
    }

private:
    Form& form_;
};

} // namespace

FormPeer::~FormPeer() {
    if (!window_)
        return;
    window_->setProperty(kForm, {});
    window_->hide();
    window_->deleteLater(); // an event of the window may be running
}

void FormPeer::changed(Prop which) {
    switch (which) {
    case Prop::Caption:
        return window_->setWindowTitle(text(form_.Caption));
    case Prop::Left:
    case Prop::Top:
        if (window_->isWindow())
            placeOnScreen(*window_, form_);
        else
            window_->move(pixels(form_.Left), pixels(form_.Top));
        return;
    default:
        return;
    }
}

void FormPeer::show() {
    window_->show();
    window_->raise();
    window_->activateWindow();
    focusForm(form_);
}

FrameWindow::FrameWindow(Form& form) : area_(new QMdiArea(this)) {
    mark(this, form);
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
    const auto* const page = dynamic_cast<PageWindow*>(area_->currentSubWindow());
    const QList<QAction*>& menus = page && formOf(page) ? page->menus() : menus_;
    if (menuBar()->actions() == menus)
        return;
    for (QAction* old : menuBar()->actions())
        menuBar()->removeAction(old);
    menuBar()->addActions(menus);
}

void FrameWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (Form* const form = formOf(this))
        form->Unload(toolkit::FormControlMenu);
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
    const auto assume = [form](const toolkit::Place& now) {
        form->Left.assume(now.Left);
        form->Top.assume(now.Top);
        form->Width.assume(now.Width);
        form->Height.assume(now.Height);
    };
    const QSize borders = frameGeometry().size() - size();
    if (windowBorders.isNull() && !borders.isNull() && !isMaximized()) {
        // It was placed without them: its middle stays where the program has put it.
        windowBorders = borders;
        const double width = twips(borders.width()), height = twips(borders.height());
        wanted_ = {form->Left - width / 2, form->Top - height / 2, form->Width + width,
                   form->Height + height};
        assume(wanted_);
        shown_ = placeOnScreen(*this, *form);
        return;
    }
    const QRect now = frameGeometry().translated(-screenOrigin());
    assume(frameGeometry() == shown_
               ? wanted_ // a place within reach that the program didn't ask for isn't its own
               : toolkit::Place{twips(now.x()), twips(now.y()), twips(now.width()),
                                twips(now.height())});
}

std::unique_ptr<FormPeer> makeFrameWindow(Form& form) {
    auto* const window = new FrameWindow(form);
    form.setBorders(0, twips(window->menuBar()->sizeHint().height()));
    return std::make_unique<FormPeer>(form, window);
}

std::unique_ptr<FormPeer> makePageWindow(Form& form, FrameWindow& frame) {
    auto* const page = new PageWindow(form);
    mark(page, form);
    page->setWidget(makeContent(form, page));
    page->setMenus(makeMenus(form, page));
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

std::unique_ptr<FormPeer> makeTopLevelWindow(Form& form) {
    auto* const window = new TopLevelWindow(form);
    describeAsDialog(*window);
    mark(window, form);
    window->setWindowTitle(text(form.Caption));
    QWidget* const content = makeContent(form, window);
    window->setFixedSize(content->size());
    if (!form.Borderless)
        form.setBorders(twips(windowBorders.width()), twips(windowBorders.height()));
    return std::make_unique<FormPeer>(form, window);
}

Form* formOf(const QWidget* window) {
    const QVariant form = window ? window->property(kForm) : QVariant();
    return form.isValid() ? static_cast<Form*>(form.value<void*>()) : nullptr;
}

} // namespace desktop_qt
