#include "desktop/qt/ControlPeer.h"

#include <QAbstractButton>
#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>

namespace desktop_qt {

namespace {

using toolkit::MSFlexGrid;

// The grid's cells as they are. The fixed row and column are the headers, which stay in view.
class GridModel final : public QAbstractTableModel {
public:
    explicit GridModel(MSFlexGrid& grid) : grid_(grid) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : qMax(0, grid_.rows() - grid_.FixedRows);
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : qMax(0, grid_.cols() - grid_.FixedCols);
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::TextAlignmentRole)
            return Qt::AlignCenter;
        if (role != Qt::DisplayRole)
            return {};
        return text(grid_.text(index.row() + grid_.FixedRows, index.column() + grid_.FixedCols));
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole)
            return {};
        return orientation == Qt::Horizontal ? text(grid_.text(0, section + grid_.FixedCols))
                                             : text(grid_.text(section + grid_.FixedRows, 0));
    }

    void reset() {
        beginResetModel();
        endResetModel();
    }
    void tellCell(int row, int column) {
        const int r = row - grid_.FixedRows;
        const int c = column - grid_.FixedCols;
        if (r >= 0 && c >= 0)
            emit dataChanged(index(r, c), index(r, c));
        else if (c >= 0)
            emit headerDataChanged(Qt::Horizontal, c, c);
        else if (r >= 0)
            emit headerDataChanged(Qt::Vertical, r, r);
    }

private:
    MSFlexGrid& grid_;
};

// The current row is the toolkit's, so the view doesn't select by itself: it tells the grid what
// the user did, and highlights what the grid answers.
class GridView final : public QTableView {
public:
    explicit GridView(QWidget* parent) : QTableView(parent) {
        setSelectionMode(QAbstractItemView::SingleSelection);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        setTabKeyNavigation(false);
        setWordWrap(false);
        for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
            header->setSectionResizeMode(QHeaderView::Fixed);
            header->setMinimumSectionSize(1);
            header->setDefaultAlignment(Qt::AlignCenter);
            header->setHighlightSections(false);
            disconnect(header, &QHeaderView::sectionPressed, this, nullptr);
            disconnect(header, &QHeaderView::sectionEntered, this, nullptr);
            connect(header, &QHeaderView::sectionClicked, this, [this] { clickHeader(); });
        }
        auto* const corner = findChild<QAbstractButton*>();
        corner->disconnect(this); // it would select all
        corner->installEventFilter(this);
        connect(corner, &QAbstractButton::clicked, this, [this] { clickHeader(); });
    }

protected:
    // The second press of a double click is no click of its own.
    bool eventFilter(QObject* watched, QEvent* event) override {
        return qobject_cast<QAbstractButton*>(watched)
                   ? event->type() == QEvent::MouseButtonDblClick
                   : QTableView::eventFilter(watched, event);
    }
    void mousePressEvent(QMouseEvent* event) override { tell(&MSFlexGrid::press, event); }
    void mouseReleaseEvent(QMouseEvent* event) override { tell(&MSFlexGrid::release, event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        tell(&MSFlexGrid::doubleClickRow, event);
    }
    void mouseMoveEvent(QMouseEvent* /*event*/) override {}
    void focusInEvent(QFocusEvent* event) override {
        QTableView::focusInEvent(event);
        if (const MSFlexGrid* const it = grid(); it && it->row() < it->FixedRows)
            selectionModel()->clearCurrentIndex(); // which the view has made of its first cell
    }
    // The keys of rows are the grid's own.
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Left)
            horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
        else if (event->key() == Qt::Key_Right)
            horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        else
            event->ignore();
    }

private:
    // nullptr once it has gone with its form.
    MSFlexGrid* grid() const { return shownBy<MSFlexGrid>(this); }

    void clickHeader() {
        setFocus(Qt::MouseFocusReason);
        if (MSFlexGrid* const it = grid(); it && hasFocus())
            it->clickRow(0);
    }
    void tell(void (MSFlexGrid::*what)(int), const QMouseEvent* event) {
        MSFlexGrid* const it = grid();
        if (!it || event->button() != Qt::LeftButton)
            return;
        const QModelIndex cell = indexAt(event->position().toPoint());
        (it->*what)(cell.isValid() ? cell.row() + it->FixedRows : -1);
    }
};

class MSFlexGridPeer final : public ControlPeer {
public:
    MSFlexGridPeer(MSFlexGrid& grid, GridView* view)
        : ControlPeer(grid, view), grid_(grid), view_(view), model_(grid) {
        view->setModel(&model_);
        corner_->setAlignment(Qt::AlignCenter);
        corner_->setAttribute(Qt::WA_TransparentForMouseEvents);
        corner_->setFont(view->font());
        showCells();
    }
    ~MSFlexGridPeer() override {
        if (widget()) // it may outlive the cells
            view_->setModel(nullptr);
    }

    void changed(toolkit::Prop which) override {
        switch (which) {
        case toolkit::Prop::Rows:
            return showCells();
        case toolkit::Prop::ColWidth:
        case toolkit::Prop::RowHeight:
            return showSizes();
        case toolkit::Prop::Row:
            return showRow();
        default:
            return ControlPeer::changed(which);
        }
    }

    void cellChanged(int row, int column) override {
        model_.tellCell(row, column);
        if (row == 0 && column == 0)
            corner_->setText(text(grid_.text(0, 0)));
    }

private:
    void showCells() {
        model_.reset();
        view_->verticalHeader()->setVisible(grid_.FixedCols > 0);
        corner_->setText(grid_.rows() > 0 && grid_.cols() > 0 ? text(grid_.text(0, 0)) : QString());
        showSizes();
        showRow();
    }

    void showSizes() {
        if (grid_.cols() > 0)
            view_->verticalHeader()->setFixedWidth(pixels(grid_.ColWidth(0)));
        if (grid_.rows() > 0)
            view_->horizontalHeader()->setFixedHeight(pixels(grid_.RowHeight(0)));
        for (int c = grid_.FixedCols; c < grid_.cols(); ++c)
            view_->setColumnWidth(c - grid_.FixedCols, pixels(grid_.ColWidth(c)));
        for (int r = grid_.FixedRows; r < grid_.rows(); ++r)
            view_->setRowHeight(r - grid_.FixedRows, pixels(grid_.RowHeight(r)));
        corner_->resize(view_->verticalHeader()->width(), view_->horizontalHeader()->height());
    }

    // Row 0 means that no row is chosen: nothing is highlighted.
    void showRow() {
        const int row = grid_.row() - grid_.FixedRows;
        if (row < 0)
            return view_->selectionModel()->clear();
        // The first column that is wholly in view, so that the view doesn't scroll sideways.
        int column = qMax(0, view_->columnAt(0));
        if (view_->columnViewportPosition(column) < 0)
            column = qMin(column + 1, model_.columnCount() - 1);
        view_->selectionModel()->setCurrentIndex(model_.index(row, column),
                                                 QItemSelectionModel::ClearAndSelect |
                                                     QItemSelectionModel::Rows);
    }

    MSFlexGrid& grid_;
    GridView* view_;
    GridModel model_;
    QLabel* corner_ = new QLabel(view_->findChild<QAbstractButton*>());
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(MSFlexGrid& grid, QWidget* parent) {
    return std::make_unique<MSFlexGridPeer>(grid, new GridView(parent));
}

} // namespace desktop_qt
