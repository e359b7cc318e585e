#include "desktop/qt/ControlPeer.h"

#include <QAbstractButton>
#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include <functional>
#include <utility>

namespace desktop_qt {

namespace {

using toolkit::MSFlexGrid;

// The grid's cells as they are. The fixed row and column are the headers, which stay in view.
class GridModel final : public QAbstractTableModel {
public:
    GridModel(MSFlexGrid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

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

// Its cells take clicks over their whole width, and a double click as one.
class Header final : public QHeaderView {
public:
    Header(Qt::Orientation orientation, QWidget* parent, std::function<void()> clicked)
        : QHeaderView(orientation, parent), clicked_(std::move(clicked)) {
        setSectionResizeMode(QHeaderView::Fixed);
        setMinimumSectionSize(1);
        setDefaultAlignment(Qt::AlignCenter);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { pressed_ = cellAt(event); }
    void mouseMoveEvent(QMouseEvent* /*event*/) override {}
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override {}
    void mouseReleaseEvent(QMouseEvent* event) override {
        const int pressed = std::exchange(pressed_, -1);
        if (pressed >= 0 && cellAt(event) == pressed)
            clicked_();
    }

private:
    int cellAt(const QMouseEvent* event) const {
        return event->button() == Qt::LeftButton ? logicalIndexAt(event->position().toPoint()) : -1;
    }

    std::function<void()> clicked_;
    int pressed_ = -1;
};

// The current row is the toolkit's, so the view doesn't select by itself: it tells the grid what
// the user did, and highlights what the grid answers.
class GridView final : public QTableView {
public:
    GridView(QWidget* parent, MSFlexGrid& grid) : QTableView(parent), grid_(&grid) {
        setSelectionMode(QAbstractItemView::SingleSelection);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        setTabKeyNavigation(false);
        setWordWrap(false);
        setHorizontalHeader(new Header(Qt::Horizontal, this, [this] { clickHeader(); }));
        setVerticalHeader(new Header(Qt::Vertical, this, [this] { clickHeader(); }));
        auto* const corner = findChild<QAbstractButton*>();
        corner->disconnect(this); // it would select all
        corner->installEventFilter(this);
        connect(corner, &QAbstractButton::clicked, this, [this] { clickHeader(); });
    }

    // The grid has gone with its form.
    void release() { grid_ = nullptr; }

protected:
    // The second press of a double click is no click of its own.
    bool eventFilter(QObject* watched, QEvent* event) override {
        return qobject_cast<QAbstractButton*>(watched)
                   ? event->type() == QEvent::MouseButtonDblClick
                   : QTableView::eventFilter(watched, event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        pressed_ = rowAt(event);
        if (grid_ && event->button() == Qt::LeftButton && pressed_ > 0)
            grid_->moveToRow(pressed_);
    }
    void mouseMoveEvent(QMouseEvent* /*event*/) override {}
    void focusInEvent(QFocusEvent* event) override {
        QTableView::focusInEvent(event);
        if (grid_ && grid_->row() < grid_->FixedRows)
            selectionModel()->clearCurrentIndex(); // which the view has made of its first cell
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        const int row = std::exchange(pressed_, 0);
        if (grid_ && event->button() == Qt::LeftButton && row > 0 && rowAt(event) == row)
            grid_->clickRow(row);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        pressed_ = 0; // its click was told already
        if (grid_ && event->button() == Qt::LeftButton && rowAt(event) > 0)
            grid_->doubleClickRow(rowAt(event));
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
    void clickHeader() {
        setFocus(Qt::MouseFocusReason);
        if (grid_)
            grid_->clickRow(0);
    }
    int rowAt(const QMouseEvent* event) const {
        return QTableView::rowAt(event->position().toPoint().y()) + 1;
    }

    MSFlexGrid* grid_;
    int pressed_ = 0; // the row under the button that went down, 0 for none
};

class MSFlexGridPeer final : public ControlPeer {
public:
    MSFlexGridPeer(MSFlexGrid& grid, GridView* view)
        : ControlPeer(grid, view), grid_(grid), view_(view), model_(new GridModel(grid, view)) {
        view->setModel(model_);
        makeCorner();
        showCells();
    }
    ~MSFlexGridPeer() override {
        if (widget()) {
            view_->release();
            view_->setModel(nullptr);
        }
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
        model_->tellCell(row, column);
        if (row == 0 && column == 0)
            corner_->setText(text(grid_.text(0, 0)));
    }

private:
    void makeCorner() {
        auto* const button = view_->findChild<QAbstractButton*>();
        corner_ = new QLabel(button);
        corner_->setAlignment(Qt::AlignCenter);
        corner_->setAttribute(Qt::WA_TransparentForMouseEvents);
        corner_->setFont(view_->font());
        auto* const layout = new QVBoxLayout(button);
        layout->setContentsMargins(1, 1, 1, 1);
        layout->addWidget(corner_);
    }

    void showCells() {
        model_->reset();
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
    }

    // Row 0 means that no row is chosen: nothing is highlighted.
    void showRow() {
        const int row = grid_.row() - grid_.FixedRows;
        if (row < 0) {
            view_->selectionModel()->clear();
            return;
        }
        // The first column that is wholly in view, so that the view doesn't scroll sideways.
        int column = qMax(0, view_->columnAt(0));
        if (view_->columnViewportPosition(column) < 0)
            column = qMin(column + 1, model_->columnCount() - 1);
        view_->selectionModel()->setCurrentIndex(model_->index(row, column),
                                                 QItemSelectionModel::ClearAndSelect |
                                                     QItemSelectionModel::Rows);
    }

    MSFlexGrid& grid_;
    GridView* view_;
    GridModel* model_;
    QLabel* corner_ = nullptr;
};

} // namespace

std::unique_ptr<ControlPeer> makeMSFlexGrid(MSFlexGrid& grid, QWidget* parent) {
    return std::make_unique<MSFlexGridPeer>(grid, new GridView(parent, grid));
}

} // namespace desktop_qt
