#include "desktop/qt/HelpViewer.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <fstream>

namespace {

class HelpViewerTest : public ::testing::Test {
protected:
    ~HelpViewerTest() override { delete viewer(); }

    void show(const QByteArray& html) {
        std::ofstream(path.toStdString()) << html.toStdString();
        showFile();
    }
    void showFile() {
        desktop_qt::showHelp(nullptr, path);
        ASSERT_TRUE(QTest::qWaitFor([] {
            viewer()->activateWindow();
            return viewer()->isActiveWindow();
        }));
    }
    static QWidget* viewer() {
        const auto all = QApplication::topLevelWidgets();
        const auto it = std::ranges::find(all, "Quor Vanta  - Help", &QWidget::windowTitle);
        return it == all.end() ? nullptr : *it;
    }
    static QTextBrowser& page() { return *viewer()->findChild<QTextBrowser*>(); }
    static QTreeWidget& contents() { return *viewer()->findChild<QTreeWidget*>(); }
    static QString lineAtTop() { return page().cursorForPosition({40, 20}).block().text(); }
    static void press(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, with);
    }

    QTemporaryDir directory;
    QString path = directory.filePath("a<b>.hlp");
    const QByteArray filler = QByteArray("<p>word</p>").repeated(200);
};

TEST_F(HelpViewerTest, HeadingsDownToTheThirdLevelAreTheContents) {
    show("<h2>Before</h2><h1>\xC3\xA4</h1><h3>Deep</h3><h2>A1</h2><h3>A1a</h3>"
         "<h4>No</h4><h1>B</h1><h3>Under B</h3>");
    QStringList headings; // each behind the one above it
    for (QTreeWidgetItemIterator it(&contents()); *it; ++it)
        headings << ((*it)->parent() ? (*it)->parent()->text(0) : "") + "/" + (*it)->text(0);
    EXPECT_EQ(headings.join(" "), "/Before /\u00E4 \u00E4/Deep \u00E4/A1 A1/A1a /B B/Under B");
}

TEST_F(HelpViewerTest, ChoosingAHeadingOrALinkBringsItToTheTop) {
    show("<h1>One</h1><a href='#three'>go</a>" + filler + "<h1>Two</h1>" + filler +
         "<h1 id='three'>Three</h1>" + filler);
    press(Qt::Key_Down);
    EXPECT_EQ(lineAtTop(), "Two");
    page().setSource(QUrl("#three"));
    showFile(); // a second call keeps the reader's place
    EXPECT_EQ(lineAtTop(), "Three");
    // A click on the heading that is current already goes back to it.
    QTest::mouseClick(contents().viewport(), Qt::LeftButton, {},
                      contents().visualItemRect(contents().currentItem()).center());
    EXPECT_EQ(lineAtTop(), "Two");
}

TEST_F(HelpViewerTest, AFileThatCannotBeReadIsReportedUntilItCan) {
    showFile();
    EXPECT_TRUE(page().toPlainText().contains(path));
    EXPECT_TRUE(contents().isHidden());
    show("<h1>Here</h1>");
    EXPECT_EQ(page().toPlainText(), "Here");
    EXPECT_FALSE(contents().isHidden());
}

TEST_F(HelpViewerTest, FindGoesRoundThePageUntilEscapeEndsIt) {
    show("<p>Ball</p>" + filler + "<p>a ball</p>");
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "ball");
    for (const auto& [key, line] :
         {std::pair(Qt::Key_Return, 0), {Qt::Key_F3, 201}, {Qt::Key_F3, 0}}) {
        press(key);
        EXPECT_EQ(page().textCursor().blockNumber(), line);
        EXPECT_TRUE(page().viewport()->rect().contains(page().cursorRect()));
    }
    QTest::keyClicks(QApplication::focusWidget(), "room\r");
    const auto labels = viewer()->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::count(labels, "Not found", &QLabel::text));

    press(Qt::Key_Escape);
    EXPECT_TRUE(page().hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(viewer()->isVisible());
}

TEST_F(HelpViewerTest, EveryLinkOfTheGuideLeadsToAPlaceInIt) {
    path = GUIDE;
    showFile();
    QSet<QString> places;
    QStringList links;
    for (QTextBlock block = page().document()->begin(); block.isValid(); block = block.next()) {
        for (const QString& name : block.charFormat().anchorNames())
            places << '#' + name;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            for (const QString& name : it.fragment().charFormat().anchorNames())
                places << '#' + name;
            if (const QString link = it.fragment().charFormat().anchorHref(); !link.isEmpty())
                links << link;
        }
    }
    EXPECT_GT(links.size(), 10);
    for (const QString& link : links)
        EXPECT_TRUE(places.contains(link)) << link.toStdString();
}

} // namespace
