#include "ui/board/board_scene.h"

#include "core/cell.h"
#include "rules/view.h"
#include "ui/desktop/look.h"
#include "ui/desktop/text.h"
#include "ui/desktop/twips.h"

namespace cellora {

namespace {

constexpr qreal dblMargin = 120;
constexpr qreal dblPitch = 720;
constexpr qreal dblCellSize = 735;
constexpr qreal dblRegionPitch = 2160;
constexpr qreal dblRegionSize = 2175;

/// From back to front. Digits of the player lie in front of the outlines except the one that was
/// brought to the front last.
enum class Layer {
    Region,
    WrongCell,
    Hint,
    Highlight,
    RegionOutline,
    Border,
    Cell,
    Entry,
    TopOutline
};

void Stack(QGraphicsItem& item, Layer layer) {
    item.setZValue(static_cast<qreal>(layer));
}

QRectF GetRegionRect(int k) {
    const int intRow = k / 3;
    const int intColumn = k % 3;
    return {dblMargin + dblRegionPitch * intColumn, dblMargin + dblRegionPitch * intRow,
            dblRegionSize, dblRegionSize};
}

QRectF GetDigitRect(int i) {
    return {dblMargin + dblPitch * GetColumn(i), 240 + dblPitch * GetRow(i), dblCellSize, 615};
}

/// The first row and column keep clear of the thick border.
QRectF GetNotesRect(int i) {
    const int c = GetColumn(i);
    const int r = GetRow(i);
    return {(c == 0 ? 165 : 150) + dblPitch * c, (r == 0 ? 150 : 135) + dblPitch * r, 660, 255};
}

/// A circle round the digit, clear of the outlines.
QRectF GetRingRect(int i) {
    constexpr qreal dblSize = 570;
    QRectF rect(0, 0, dblSize, dblSize);
    rect.moveCenter(BoardScene::GetCellRect(i).center() + QPointF(0, 22));
    return rect;
}

void MirrorLabel(LabelItem& item, const LabelView& label) {
    item.SetText(ToQString(label.strCaption));
    item.SetColor(ToQColor(label.lngForeColor));
    item.setVisible(label.blnVisible);
}

} // namespace

BoardScene::BoardScene() : grid_(std::make_unique<GridView>()) {
    setSceneRect(0, 0, dblGridSize, dblGridSize);
    // The elements never move, so an index of their places would only cost.
    setItemIndexMethod(NoIndex);
    MakeRegions();
    shpHint_ = new HintItem({dblCellSize, dblCellSize}, *this);
    Stack(*shpHint_, Layer::Hint);
    for (int i = 1; i <= intCellCount; ++i)
        MakeCell(i);
}

BoardScene::~BoardScene() = default;

void BoardScene::MakeRegions() {
    for (int k = 0; k < 9; ++k) {
        shp9_[static_cast<std::size_t>(k)] = new ShapeItem(GetRegionRect(k), 2, *this);
        Stack(*shp9_[static_cast<std::size_t>(k)], Layer::Region);
        auto* const shpW9 = new ShapeItem(GetRegionRect(k), 2, *this);
        shpW9->SetOutline(2, ToQColor(lngColorWindowText));
        Stack(*shpW9, Layer::RegionOutline);
    }
    shpBorder_ = new ShapeItem({dblMargin, dblMargin, 6495, 6495}, 3, *this);
    Stack(*shpBorder_, Layer::Border);
}

void BoardScene::MakeCell(int i) {
    const QFont fontDigit = MakeSceneFont(24, Weight::Bold);
    const QPointF cell = GetCellRect(i).topLeft();
    CellItems& items = cells_[i];
    items.shpWCell = new ShapeItem(GetCellRect(i), 1, *this);
    Stack(*items.shpWCell, Layer::WrongCell);
    items.shpHighlight = new RingItem(GetRingRect(i), *this);
    items.shpHighlight->setVisible(false);
    Stack(*items.shpHighlight, Layer::Highlight);
    items.shpMark = new MarkItem(GetCellRect(i), *this);
    items.shpMark->setVisible(false);
    Stack(*items.shpMark, Layer::Highlight);
    items.shpCell = new CellOutlineItem(GetCellRect(i), GetColumn(i) == 0, GetRow(i) == 0, *this);
    Stack(*items.shpCell, Layer::Cell);
    items.lblSolution = new LabelItem(GetDigitRect(i), cell, fontDigit, Qt::AlignHCenter, *this);
    Stack(*items.lblSolution, Layer::Cell);
    items.lblCandidate =
        new LabelItem(GetNotesRect(i), cell, MakeSceneFont(8), Qt::AlignLeft, *this);
    Stack(*items.lblCandidate, Layer::Cell);
    items.lblCell = new LabelItem(GetDigitRect(i), cell, fontDigit, Qt::AlignHCenter, *this);
    Stack(*items.lblCell, Layer::Entry);
}

void BoardScene::Mirror(const GridView& grid, std::int32_t lngBackColor) {
    if (const QBrush brush(ToQColor(lngBackColor)); backgroundBrush() != brush)
        setBackgroundBrush(brush);
    MirrorRegions(grid);
    for (int i = 1; i <= intCellCount; ++i)
        if (grid.cells[i] != grid_->cells[i])
            MirrorCell(i, grid.cells[i]);
    MirrorStacking(grid.intTopOutline);
    *grid_ = grid;
    HintCell(intHinted_);
}

void BoardScene::HintCell(int intCell) {
    intHinted_ = intCell;
    if (intCell != 0 && grid_->cells[intCell].blnTakesClick)
        shpHint_->Show(GetCellRect(intCell).topLeft(),
                       ToQColor(grid_->cells[intCell].lblCell.lngForeColor));
    else
        shpHint_->setVisible(false);
}

void BoardScene::MirrorRegions(const GridView& grid) {
    const QColor colorLine = ToQColor(grid.lngLineColor);
    for (int k = 0; k < 9; ++k) {
        shp9_[static_cast<std::size_t>(k)]->SetOutline(2, colorLine);
        if (IsFilledRegion(k))
            shp9_[static_cast<std::size_t>(k)]->SetFill(ToQColor(grid.lngRegionFill));
    }
    shpBorder_->SetOutline(3, colorLine);
}

void BoardScene::MirrorCell(int i, const CellView& cell) {
    const CellItems& items = cells_[i];
    items.shpWCell->SetFill(cell.shpWCell ? ToQColor(*cell.shpWCell) : QColor());
    items.shpMark->setVisible(cell.shpWCell.has_value());
    items.shpMark->SetColor(ToQColor(cell.lngMarkColor));
    items.shpHighlight->setVisible(cell.shpHighlight.has_value());
    if (cell.shpHighlight)
        items.shpHighlight->SetColors(ToQColor(cell.shpHighlight->lngLineColor),
                                      ToQColor(cell.shpHighlight->lngFillColor));
    items.shpCell->SetOutline(cell.intOutlineWidth, ToQColor(cell.lngOutlineColor));
    MirrorLabel(*items.lblSolution, cell.lblSolution);
    MirrorLabel(*items.lblCandidate, cell.lblCandidate);
    MirrorLabel(*items.lblCell, cell.lblCell);
}

void BoardScene::MirrorStacking(int intTopOutline) {
    const int intBefore = grid_->intTopOutline;
    if (intBefore == intTopOutline)
        return;
    if (intBefore != 0)
        Stack(*cells_[intBefore].shpCell, Layer::Cell);
    if (intTopOutline != 0)
        Stack(*cells_[intTopOutline].shpCell, Layer::TopOutline);
}

int BoardScene::GetCellAt(QPointF point) const {
    // Where two labels overlap, the one of the later cell lies in front.
    for (int i = intCellCount; i >= 1; --i) {
        if (cells_[i].lblCell->ContainsPoint(point) || cells_[i].lblCandidate->ContainsPoint(point))
            return i;
    }
    return 0;
}

QRectF BoardScene::GetCellRect(int intCell) {
    return {dblMargin + dblPitch * GetColumn(intCell), dblMargin + dblPitch * GetRow(intCell),
            dblCellSize, dblCellSize};
}

} // namespace cellora
