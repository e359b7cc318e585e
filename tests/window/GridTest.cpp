// Clicks of the mouse on the cells of a grid that is shown.
#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/QtDesktop.h"

#include <gtest/gtest.h>

#include <QtWidgets>

namespace {

struct GridForm : toolkit::FormOf<GridForm> {
    toolkit::MSFlexGrid grid{*this, "grid", {0, 0, 3000, 3000}};
    std::string told;

    GridForm() : FormOf(Kind::TopLevel, "GridForm", 3000, 3000) {
        grid.Rows = 5;
        grid.Click = [this] { told += "c" + std::to_string(grid.row()); };
        grid.DblClick = [this] { told += "d"; };
    }
};

void send(QWidget& to, QEvent::Type type, QPoint at) {
    QMouseEvent event(type, at, to.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&to, &event);
}

TEST(Grid, EveryHeaderCellTakesAClickAndNoDoubleClickOverItsWholeWidth) {
    GridForm& form = GridForm::the();
    form.Show();
    QCoreApplication::processEvents();
    auto& view = dynamic_cast<QTableView&>(*desktop_qt::widgetOf(form.grid));
    auto& corner = *view.findChild<QAbstractButton*>();
    QHeaderView &columns = *view.horizontalHeader(), &rows = *view.verticalHeader();
    const int right = columns.sectionSize(0) - 1, bottom = rows.sectionSize(1) * 2 - 1;
    struct Case {
        QWidget& at;
        QPoint place;
        std::string click, doubleClick;
    };
    for (const Case& it :
         std::initializer_list<Case>{{corner, corner.rect().center(), "c2", "c2"},
                                     {*columns.viewport(), {right / 2, 5}, "c2", "c2"},
                                     {*columns.viewport(), {right, 5}, "c2", "c2"},
                                     {*columns.viewport(), {0, 5}, "c2", "c2"},
                                     {*rows.viewport(), {5, bottom}, "c2", "c2"},
                                     {*view.viewport(), {5, bottom}, "c2", "c2d"}}) {
        form.grid.Row = 2;
        form.told.clear();
        send(it.at, QEvent::MouseButtonPress, it.place);
        send(it.at, QEvent::MouseButtonRelease, it.place);
        EXPECT_EQ(form.told, it.click) << it.place.x();
        send(it.at, QEvent::MouseButtonDblClick, it.place);
        send(it.at, QEvent::MouseButtonRelease, it.place);
        EXPECT_EQ(form.told, it.doubleClick) << it.place.x();
    }
    form.Unload();
}

} // namespace
