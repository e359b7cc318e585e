#include "desktop/qt/HelpViewer.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <algorithm>

namespace {

class HelpViewerTest : public ::testing::Test {
protected:
    ~HelpViewerTest() override { delete viewer(); }

    void show(const QByteArray& html) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
        file.close();
        showFile();
    }
    void showFile() {
        desktop_qt::showHelp(nullptr, path);
        ASSERT_NE(viewer(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(viewer()));
    }
    static QWidget* viewer() {
        for (QWidget* it : QApplication::topLevelWidgets())
            if (it->windowTitle() == "Quor Vanta  - Help")
                return it;
        return nullptr;
    }
    static QTextBrowser& page() { return *viewer()->findChild<QTextBrowser*>(); }
    static QTreeWidget& contents() { return *viewer()->findChild<QTreeWidget*>(); }
    static QLineEdit& sought() { return *viewer()->findChild<QLineEdit*>(); }
    static QString lineAtTop() { return page().cursorForPosition({40, 20}).block().text(); }

    // The headings, each behind as many dots as headings stand above it.
    static QStringList outline() {
        QStringList lines;
        for (QTreeWidgetItemIterator it(&contents()); *it; ++it) {
            lines << (*it)->text(0);
            for (auto* above = (*it)->parent(); above; above = above->parent())
                lines.last().prepend('.');
        }
        return lines;
    }

    QTemporaryDir directory;
    QString path = directory.filePath("a<b>.hlp");
    const QByteArray filler = QByteArray("<p>word</p>").repeated(200);
};

TEST_F(HelpViewerTest, HeadingsDownToTheThirdLevelAreTheContents) {
    show("<h2>Before</h2><h1>\xC3\xA4</h1><h3>Deep</h3><h2>A1</h2><h3>A1a</h3>"
         "<h4>No</h4><h1>B</h1><h3>Under B</h3>");
    EXPECT_EQ(outline(),
              QStringList({"Before", "\u00E4", ".Deep", ".A1", "..A1a", "B", ".Under B"}));
}

TEST_F(HelpViewerTest, ChoosingAHeadingOrALinkBringsItToTheTop) {
    show("<h1>One</h1><a href='#three'>go</a>" + filler + "<h1>Two</h1>" + filler +
         "<h1 id='three'>Three</h1>" + filler);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(lineAtTop(), "Two");
    page().setSource(QUrl("#three"));
    EXPECT_EQ(lineAtTop(), "Three");
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
    EXPECT_EQ(outline(), QStringList("Here"));
    EXPECT_FALSE(contents().isHidden());
}

TEST_F(HelpViewerTest, FindGoesRoundThePageUntilEscapeEndsIt) {
    show("<p>Ball</p>" + filler + "<p>a ball</p>");
    const auto foundBy = [](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_TRUE(page().viewport()->rect().contains(page().cursorRect()));
        return page().textCursor().blockNumber();
    };
    QTest::keyClick(&page(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "ball");
    EXPECT_EQ(foundBy(Qt::Key_Return), 0);
    EXPECT_EQ(foundBy(Qt::Key_F3), 201);
    EXPECT_EQ(foundBy(Qt::Key_F3), 0);

    sought().setText("nowhere");
    EXPECT_EQ(foundBy(Qt::Key_Return), 0);
    const auto labels = viewer()->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](auto* it) { return it->text() == "Not found"; }));

    QTest::keyClick(&sought(), Qt::Key_Escape);
    ASSERT_TRUE(viewer()->isVisible());
    EXPECT_FALSE(sought().isVisible());
    QTest::keyClick(&page(), Qt::Key_Escape);
    EXPECT_FALSE(viewer()->isVisible());
}

} // namespace
