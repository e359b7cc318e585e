// Whether every text has the room that it needs and stands where it should, at the scale that the
// environment tells.
#include "bankroll/frmBankroll.h"
#include "common/frmURL.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/QtDesktop.h"
#include "frame/MDIForm1.h"
#include "frame/frmAbout.h"
#include "frame/frmSplash.h"
#include "lists/frmCustomize6.h"
#include "lists/frmFavorites.h"
#include "numbers/frmMain.h"
#include "tests/support/DataFile.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

#include <QtWidgets>

namespace {

using namespace quorvanta;

// What a widget shows, and the room for it.
struct Shown {
    QString text;
    QSize room;
    int flags = Qt::TextShowMnemonic;
};
Shown shown(const QWidget& widget) {
    const auto inner = [&](QStyle::SubElement part) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        return widget.style()->subElementRect(part, &option, &widget).width();
    };
    if (const auto* push = qobject_cast<const QPushButton*>(&widget))
        return {push->text(), {inner(QStyle::SE_PushButtonContents), push->height() - 4}};
    if (const auto* option = qobject_cast<const QRadioButton*>(&widget))
        return {option->text(), {inner(QStyle::SE_RadioButtonContents), option->height()}};
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return {group->title(), {group->width() - 16, group->height()}};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return {label->text(), label->contentsRect().size(),
                label->wordWrap() ? Qt::TextWordWrap : 0};
    return {};
}

void checkGrid(const QTableView& grid) {
    const auto& header = *grid.horizontalHeader();
    QFont font = header.font();
    font.setBold(true); // more than it is shown in
    const QFontMetrics bold(font);
    for (int c = 0; c < grid.model()->columnCount(); ++c) {
        const QString name = grid.model()->headerData(c, Qt::Horizontal).toString();
        EXPECT_LE(bold.horizontalAdvance(name) + 2, header.sectionSize(c)) << name.toStdString();
        const QAbstractItemView& view = grid; // where this is public
        EXPECT_LE(view.sizeHintForIndex(grid.model()->index(0, c)).width(), grid.columnWidth(c));
    }
    EXPECT_LE(bold.height(), header.height());
    EXPECT_LE(bold.height(), grid.rowHeight(0));
    EXPECT_LT(grid.columnViewportPosition(0), grid.columnViewportPosition(1));
}

void checkWindow(toolkit::Form& form) {
    QCoreApplication::processEvents();
    QWidget& window = *dynamic_cast<desktop_qt::FormPeer&>(*form.peer()).window();
    EXPECT_EQ(window.layoutDirection(), Qt::LeftToRight);
    int texts = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->parentWidget()->rect().intersects(widget->geometry()))
            continue;
        if (const auto* grid = qobject_cast<const QTableView*>(widget))
            checkGrid(*grid);
        const auto [text, room, flags] = shown(*widget);
        if (text.isEmpty())
            continue;
        ++texts;
        const QSize needed = QFontMetrics(widget->font())
                                 .boundingRect(QRect({}, QSize(room.width(), 9999)), flags, text)
                                 .size();
        EXPECT_TRUE(needed.width() <= room.width() && needed.height() <= room.height())
            << text.toStdString() << ": " << needed.width() << "x" << needed.height() << " in "
            << room.width() << "x" << room.height();
        // The upper of the splash's two titles stands a pixel above the edge.
        EXPECT_TRUE(
            widget->parentWidget()->rect().adjusted(0, -1, 0, 0).contains(widget->geometry()))
            << text.toStdString() << " leaves what it stands in";
    }
    EXPECT_GT(texts, 3);
}

TEST(Fit, NoTextIsCutOffAndNothingIsMirrored) {
    const tests::FakePlatform os;
    tests::forgetStored();
    for (int n = 1; n <= 49; ++n)
        gstrStammNumbers[1] += std::to_string(n) + ";";
    gstrFavorites[1] = "44;45;46;47;48;49;";
    gdblWin = 1234567890.12;
    gdblLoss = 2 * gdblWin;
    for (toolkit::Form* form : std::initializer_list<toolkit::Form*>{
             &frmSplash::the(), &frmAbout::the(), &frmURL::the()}) {
        form->Show();
        checkWindow(*form);
        form->Unload();
    }
    for (toolkit::Form* form : std::initializer_list<toolkit::Form*>{
             &MDIForm1::the(), &frmBankroll::the(), &frmMain::the(), &frmCustomize6::the(),
             &frmFavorites::the()})
        form->Show();
    for (int n = 1; n <= 49; ++n) {
        frmCustomize6::the().cmdKey(n).FontBold = true;
        frmFavorites::the().cmdKey(n).FontBold = true;
    }
    frmCustomize6::the().statBar1.Panels(1).Text = "Shift mode";
    checkWindow(MDIForm1::the());
    tests::dropForms();
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft); // as for a user who reads so
    desktop_qt::QtDesktop desktop;
    toolkit::install(&desktop);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
