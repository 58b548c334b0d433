#include "ui/board/board_accessible.h"

#include <QAccessibleWidget>
#include <QApplication>

#include "core/cell.h"
#include "core/text.h"
#include "rules/view.h"
#include "ui/board/board_view.h"
#include "ui/desktop/text.h"

namespace cellora {

namespace {

constexpr int intSide = 9;

class BoardTable;

/// One cell of the table; it belongs to the table and lives as long.
class BoardCell final : public QAccessibleInterface,
                        public QAccessibleTableCellInterface,
                        public QAccessibleActionInterface {
public:
    BoardCell(BoardTable& table, int intCell) : table_(table), intCell_(intCell) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface*>(this);
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return GetColumn(intCell_); }
    int rowIndex() const override { return GetRow(intCell_); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;

    QStringList actionNames() const override {
        return {setFocusAction(), pressAction(), showMenuAction()};
    }
    void doAction(const QString& strAction) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    int cell() const { return intCell_; }

private:
    BoardTable& table_;
    int intCell_;
};

/// `picGrid` as a table. The cells' interfaces are made when the first is asked for.
class BoardTable final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit BoardTable(BoardView& view)
        : QAccessibleWidget(&view, QAccessible::Table, QStringLiteral("Grid")), view_(view) {}

    ~BoardTable() override {
        for (const QAccessible::Id id : cells_) {
            if (id != 0)
                QAccessible::deleteAccessibleInterface(id);
        }
    }

    BoardView& view() const { return view_; }

    QAccessibleInterface* GetCell(int intCell) const {
        QAccessible::Id& id = cells_[intCell];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(
                new BoardCell(const_cast<BoardTable&>(*this), intCell));
        return QAccessible::accessibleInterface(id);
    }

    int childCount() const override { return intCellCount; }
    QAccessibleInterface* child(int intIndex) const override {
        return intIndex >= 0 && intIndex < intCellCount ? GetCell(intIndex + 1) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* const cell = dynamic_cast<const BoardCell*>(child);
        return cell != nullptr ? cell->cell() - 1 : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return child(view_.GetCellAt(view_.mapFromGlobal(QPoint(x, y))) - 1);
    }
    QAccessibleInterface* focusChild() const override {
        return view_.hasFocus() ? GetCell(view_.grid().intCursorCell) : nullptr;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int intRow, int intColumn) const override {
        const bool blnInside =
            intRow >= 0 && intRow < intSide && intColumn >= 0 && intColumn < intSide;
        return blnInside ? GetCell(intRow * intSide + intColumn + 1) : nullptr;
    }
    int selectedCellCount() const override { return 1; }
    QList<QAccessibleInterface*> selectedCells() const override {
        return {GetCell(view_.grid().intCursorCell)};
    }
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override { return intSide; }
    int rowCount() const override { return intSide; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    BoardView& view_;
    mutable Numbered<QAccessible::Id, intCellCount> cells_;
};

bool BoardCell::isValid() const {
    return table_.isValid();
}

QAccessibleInterface* BoardCell::parent() const {
    return &table_;
}

QAccessibleInterface* BoardCell::table() const {
    return &table_;
}

QString BoardCell::text(QAccessible::Text text) const {
    return text == QAccessible::Name ? GetCellName(table_.view().grid(), intCell_) : QString();
}

QRect BoardCell::rect() const {
    const QRect rect = table_.view().GetCellRect(intCell_);
    return {table_.view().mapToGlobal(rect.topLeft()), rect.size()};
}

QAccessible::State BoardCell::state() const {
    const BoardView& view = table_.view();
    QAccessible::State state;
    state.focusable = true;
    state.selectable = true;
    state.disabled = !view.isEnabled();
    state.invisible = !view.isVisible();
    state.selected = isSelected();
    state.focused = state.selected && view.hasFocus();
    return state;
}

bool BoardCell::isSelected() const {
    return table_.view().grid().intCursorCell == intCell_;
}

void Perform(BoardView& view, int intCell, const QString& strAction) {
    // Assistive technology reaches the board behind a modal window or a menu, where the mouse does
    // not.
    if (!view.isVisible() || !view.isEnabled() || QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr)
        return;
    const QPoint center = view.mapToGlobal(view.GetCellRect(intCell).center());
    if (strAction == QAccessibleActionInterface::setFocusAction())
        emit view.cursorRequested(intCell);
    else if (strAction == QAccessibleActionInterface::pressAction())
        emit view.cellReleased(intCell, MouseButton::Left, center);
    else if (strAction == QAccessibleActionInterface::showMenuAction())
        emit view.cellReleased(intCell, MouseButton::Right, center);
}

void BoardCell::doAction(const QString& strAction) {
    // Queued, because the last move of a game opens a window and the caller waits for the return.
    BoardView* const view = &table_.view();
    QMetaObject::invokeMethod(
        view, [view, i = intCell_, strAction] { Perform(*view, i, strAction); },
        Qt::QueuedConnection);
}

QAccessibleInterface* MakeBoardTable(const QString&, QObject* object) {
    auto* const view = qobject_cast<BoardView*>(object);
    return view != nullptr ? new BoardTable(*view) : nullptr;
}

QString GetContentName(const CellView& cell) {
    if (cell.lblSolution.blnVisible)
        return QStringLiteral("given ") + ToQString(cell.lblSolution.strCaption);
    const std::string& strEntry = cell.lblCell.strCaption;
    return strEntry.empty() ? QStringLiteral("empty") : ToQString(strEntry);
}

} // namespace

QString GetCellName(const GridView& grid, int intCell) {
    const CellView& cell = grid.cells[intCell];
    QString strName =
        QStringLiteral("Row %1, column %2: ").arg(GetRow(intCell) + 1).arg(GetColumn(intCell) + 1);
    // A paused board cannot be studied, by eye or by ear.
    if (grid.blnPaused)
        return strName + QStringLiteral("hidden");
    strName += GetContentName(cell);
    if (cell.shpWCell)
        strName += QStringLiteral(", incorrect");
    if (const auto strNotes = Trim(cell.lblCandidate.strCaption); !strNotes.empty())
        strName += QStringLiteral(", notes ") + ToQString(strNotes);
    return strName;
}

void InstallBoardAccessibility() {
    QAccessible::installFactory(MakeBoardTable);
}

void BoardAnnouncer::Announce() {
    if (!view_.isVisible())
        return;
    AnnounceNames();
    AnnounceCursor();
}

void BoardAnnouncer::AnnounceNames() {
    for (int i = 1; i <= intCellCount; ++i) {
        QString strName = GetCellName(view_.grid(), i);
        QString& strNameBefore = strNames_[i];
        if (strName == strNameBefore)
            continue;
        strNameBefore = std::move(strName);
        QAccessibleEvent event(&view_, QAccessible::NameChanged);
        event.setChild(i - 1);
        fnTell_(&event);
    }
}

void BoardAnnouncer::AnnounceCursor() {
    const int intCell = view_.grid().intCursorCell;
    if (intCell == intCursorCell_)
        return;
    intCursorCell_ = intCell;
    for (const QAccessible::Event type : {QAccessible::Selection, QAccessible::Focus}) {
        if (type == QAccessible::Focus && !view_.hasFocus())
            continue;
        QAccessibleEvent event(&view_, type);
        event.setChild(intCell - 1);
        fnTell_(&event);
    }
}

} // namespace cellora
