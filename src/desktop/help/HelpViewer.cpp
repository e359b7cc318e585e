#include "desktop/help/HelpViewer.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop_help {

namespace {

const QColor kLinkOnDark(0x7A, 0xB8, 0xFF);
constexpr int kLastContentsLevel = 3; // headings below this one stay out of the contents

class HelpViewer : public QWidget {
public:
    HelpViewer();

    // Keeps the reader's place when it shows this file already.
    void open(const QString& file);

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildFindBar();
    void buildShortcuts();
    void load();
    void fillContents();
    void goTo(const QTreeWidgetItem* heading);
    // Shows in the contents which heading the place, an offset in the text, stands under.
    void follow(int place);
    void zoom(int steps);
    void startFind();
    void find(QTextDocument::FindFlags direction);
    void leave();

    // Shows the place that far below the top of the view, in pixels.
    void scrollTo(const QTextCursor& place, int below);

    QString file_;
    bool going_ = false; // to a heading that was chosen
    bool readable_ = false;
    QTreeWidget* contents_ = new QTreeWidget;
    QTextBrowser* page_ = new QTextBrowser;
    QWidget* findBar_ = new QWidget;
    QLineEdit* sought_ = new QLineEdit;
    QLabel* findResult_ = new QLabel;
};

HelpViewer::HelpViewer() {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false); // the program doesn't live on for its help
    setWindowTitle(QStringLiteral("Quor Vanta  - Help"));

    contents_->setHeaderHidden(true);
    contents_->setAccessibleName(QStringLiteral("Contents"));
    connect(contents_, &QTreeWidget::currentItemChanged, this, &HelpViewer::goTo);
    // Choosing the current heading once more goes back to it.
    connect(contents_, &QTreeWidget::itemClicked, this, &HelpViewer::goTo);
    connect(contents_, &QTreeWidget::itemActivated, this, &HelpViewer::goTo);

    page_->setAccessibleName(QStringLiteral("Help page"));
    page_->setOpenExternalLinks(true);
    page_->document()->setDocumentMargin(12);
    connect(page_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!going_)
            follow(page_->cursorForPosition({0, 0}).position());
    });

    auto* panes = new QSplitter;
    panes->addWidget(contents_);
    panes->addWidget(page_);
    panes->setStretchFactor(1, 1);
    panes->setChildrenCollapsible(false);
    const int em = fontMetrics().height();
    panes->setSizes({16 * em, 44 * em});

    buildFindBar();
    buildShortcuts();
    auto* column = new QVBoxLayout(this);
    column->addWidget(panes, 1);
    column->addWidget(findBar_);
    resize(QSize(60 * em, 42 * em).boundedTo(screen()->availableSize() * 0.9));
}

void HelpViewer::buildFindBar() {
    auto* label = new QLabel(QStringLiteral("F&ind:"));
    auto* next = new QPushButton(QStringLiteral("Find &Next"));
    label->setBuddy(sought_);
    sought_->setAccessibleName(QStringLiteral("Find on the help page"));
    sought_->setClearButtonEnabled(true);
    auto* row = new QHBoxLayout(findBar_);
    row->setContentsMargins({});
    row->addWidget(label);
    row->addWidget(sought_, 1);
    row->addWidget(next);
    row->addWidget(findResult_, 1);
    connect(sought_, &QLineEdit::returnPressed, this, [this] { find({}); });
    connect(sought_, &QLineEdit::textEdited, findResult_, &QLabel::clear);
    connect(next, &QPushButton::clicked, this, [this] { find({}); });
}

void HelpViewer::buildShortcuts() {
    const auto on = [this](QKeySequence::StandardKey key, auto action) {
        for (const QKeySequence& keys : QKeySequence::keyBindings(key))
            new QShortcut(keys, this, action);
    };
    on(QKeySequence::Find, [this] { startFind(); });
    on(QKeySequence::FindNext, [this] { find({}); });
    on(QKeySequence::FindPrevious, [this] { find(QTextDocument::FindBackward); });
    on(QKeySequence::ZoomIn, [this] { zoom(1); });
    on(QKeySequence::ZoomOut, [this] { zoom(-1); });
    on(QKeySequence::Cancel, [this] { leave(); });
}

void HelpViewer::open(const QString& file) {
    if (readable_ && file == file_)
        return;
    file_ = file;
    load();
    contents_->setVisible(contents_->topLevelItemCount() > 0);
    contents_->setCurrentItem(contents_->topLevelItem(0));
    (contents_->isHidden() ? static_cast<QWidget*>(page_) : contents_)->setFocus();
}

void HelpViewer::load() {
    // Some dark themes leave links in the dark blue that is meant for a white page.
    QColor link = palette().color(QPalette::Link);
    if (qMax(link.lightness(), palette().color(QPalette::Base).lightness()) < 144)
        link = kLinkOnDark;
    page_->document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 }").arg(link.name()));
    QFile input(file_);
    readable_ = input.open(QIODevice::ReadOnly);
    if (readable_)
        page_->setHtml(QString::fromUtf8(input.readAll()));
    else
        page_->setHtml(QStringLiteral("<p><b>The help can't be shown.</b></p>"
                                      "<p>This file can't be read:</p><p>%1</p><p>Reason: %2</p>")
                           .arg(QDir::toNativeSeparators(file_).toHtmlEscaped(),
                                input.errorString().toHtmlEscaped()));
    fillContents();
}

void HelpViewer::fillContents() {
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    QTreeWidgetItem* above[kLastContentsLevel + 1] = {contents_->invisibleRootItem()};
    for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > kLastContentsLevel)
            continue;
        QTreeWidgetItem* parent = nullptr;
        for (int up = level - 1; !parent; --up)
            parent = above[up];
        auto* item = new QTreeWidgetItem(parent, {block.text()});
        item->setData(0, Qt::UserRole, block.position());
        above[level] = item;
        std::fill(above + level + 1, std::end(above), nullptr);
    }
    contents_->expandAll();
}

void HelpViewer::goTo(const QTreeWidgetItem* heading) {
    if (!heading)
        return;
    const QScopedValueRollback going(going_, true);
    QTextDocument& document = *page_->document();
    const QTextBlock block = document.findBlock(heading->data(0, Qt::UserRole).toInt());
    page_->setTextCursor(QTextCursor(block));
    page_->verticalScrollBar()->setValue(
        static_cast<int>(document.documentLayout()->blockBoundingRect(block).top()));
}

void HelpViewer::follow(int place) {
    QTreeWidgetItem* above = contents_->topLevelItem(0);
    for (QTreeWidgetItemIterator it(contents_); *it; ++it)
        if ((*it)->data(0, Qt::UserRole).toInt() <= place)
            above = *it;
    const QSignalBlocker quiet(contents_); // else the text would go to the heading
    contents_->setCurrentItem(above);
}

void HelpViewer::zoom(int steps) {
    const QTextCursor top = page_->cursorForPosition({0, 0});
    const int below = page_->cursorRect(top).top();
    page_->zoomIn(steps);
    scrollTo(top, below);
}

void HelpViewer::scrollTo(const QTextCursor& place, int below) {
    QScrollBar& bar = *page_->verticalScrollBar();
    bar.setValue(bar.value() + page_->cursorRect(place).top() - below);
}

void HelpViewer::startFind() {
    sought_->setFocus();
    sought_->selectAll();
}

// Goes on at the other end of the page when nothing more is found on this side.
void HelpViewer::find(QTextDocument::FindFlags direction) {
    if (sought_->text().isEmpty())
        return startFind();
    bool found = page_->find(sought_->text(), direction);
    if (!found) {
        const QTextCursor place = page_->textCursor();
        page_->moveCursor(direction ? QTextCursor::End : QTextCursor::Start);
        found = page_->find(sought_->text(), direction);
        if (!found)
            page_->setTextCursor(place);
    }
    // A word at the edge of the view is shown with what stands around it.
    const int height = page_->viewport()->height();
    const int top = page_->cursorRect().top();
    if (found && (top < height / 5 || top > height * 4 / 5))
        scrollTo(page_->textCursor(), height / 3);
    if (found)
        follow(page_->textCursor().position());
    findResult_->setText(found ? QString() : QStringLiteral("Not found"));
}

void HelpViewer::leave() {
    if (sought_->hasFocus())
        page_->setFocus();
    else
        close();
}

// The colours of links are taken when a page is read, so a change of the theme reads it anew.
void HelpViewer::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || file_.isEmpty())
        return;
    const int place = page_->verticalScrollBar()->value();
    load();
    page_->verticalScrollBar()->setValue(place);
}

} // namespace

void showHelp(QWidget* owner, const QString& file) {
    static QPointer<HelpViewer> viewer;
    if (!viewer) {
        viewer = new HelpViewer;
        if (owner)
            QObject::connect(owner->window(), &QObject::destroyed, viewer, &QWidget::close);
    }
    viewer->open(file);
    viewer->setWindowState(viewer->windowState() & ~Qt::WindowMinimized);
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
}

} // namespace desktop_help
