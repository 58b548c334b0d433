#include "ui/board_scene.h"

#include "ui/layout_pass.h"
#include "ui/look.h"
#include "ui/text.h"

namespace cellora {

namespace {

constexpr qreal dblMargin = 120;
constexpr qreal dblPitch = 720;
constexpr qreal dblCellSize = 735;
constexpr qreal dblRegionPitch = 2160;
constexpr qreal dblRegionSize = 2175;

/// From back to front. Digits of the player lie in front of the outlines except the one that was
/// brought to the front last.
enum class Layer { Region, WrongCell, Highlight, RegionOutline, Border, Cell, Entry, TopOutline };

void Stack(QGraphicsItem& item, Layer layer) {
    item.setZValue(static_cast<qreal>(layer));
}

/// Regions 0, 2, 4, 6 and 8 form an X.
bool IsFilledRegion(int k) {
    return k % 2 == 0;
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

} // namespace

BoardScene::BoardScene() {
    setSceneRect(0, 0, dblGridSize, dblGridSize);
    // The elements never move, so an index of their places would only cost.
    setItemIndexMethod(NoIndex);
    MakeRegions();
    for (int i = 1; i <= intCellCount; ++i)
        MakeCell(i);
}

void BoardScene::MakeRegions() {
    for (int k = 0; k < 9; ++k) {
        shp9_[k + 1] = new ShapeItem(GetRegionRect(k), 2, *this);
        Stack(shp9(k), Layer::Region);
        shpW9_[k + 1] = new ShapeItem(GetRegionRect(k), 2, *this);
        shpW9(k).SetOutline(2, ToQColor(lngColorWindowText));
        Stack(shpW9(k), Layer::RegionOutline);
    }
    shpBorder_ = new ShapeItem({dblMargin, dblMargin, 6495, 6495}, 3, *this);
    Stack(shpBorder(), Layer::Border);
}

void BoardScene::MakeCell(int i) {
    const QFont fontDigit = MakeSceneFont(24, Weight::Bold);
    shpWCell_[i] = new ShapeItem(GetCellRect(i), 1, *this);
    Stack(shpWCell(i), Layer::WrongCell);
    shpHighlight_[i] = new RingItem(GetRingRect(i), *this);
    shpHighlight(i).setVisible(false);
    Stack(shpHighlight(i), Layer::Highlight);
    shpCell_[i] = new ShapeItem(GetCellRect(i), 1, *this);
    Stack(shpCell(i), Layer::Cell);
    lblSolution_[i] = new LabelItem(GetDigitRect(i), fontDigit, Qt::AlignHCenter, *this);
    Stack(lblSolution(i), Layer::Cell);
    lblCandidate_[i] = new LabelItem(GetNotesRect(i), MakeSceneFont(8), Qt::AlignLeft, *this);
    Stack(lblCandidate(i), Layer::Cell);
    lblCell_[i] = new LabelItem(GetDigitRect(i), fontDigit, Qt::AlignHCenter, *this);
    Stack(lblCell(i), Layer::Entry);
}

void BoardScene::Mirror(const Game& game) {
    MirrorRegions(game);
    for (int i = 1; i <= intCellCount; ++i)
        MirrorCell(i, game);
    MirrorStacking(game);
}

void BoardScene::MirrorRegions(const Game& game) {
    const QBrush brushGrid(ToQColor(game.picGrid.lngBackColor));
    if (backgroundBrush() != brushGrid)
        setBackgroundBrush(brushGrid);
    const QColor colorLine = ToQColor(game.boardColors.lngRegionLine);
    const QColor colorFill = ToQColor(game.boardColors.lngRegionFill);
    for (int k = 0; k < 9; ++k) {
        shp9(k).SetOutline(2, colorLine);
        if (IsFilledRegion(k))
            shp9(k).SetFill(colorFill);
    }
    shpBorder().SetOutline(3, colorLine);
}

void BoardScene::MirrorCell(int i, const Game& game) {
    const Cell& cell = game.cells[i];
    const QColor colorUser = ToQColor(game.boardColors.lngUserText);
    const bool blnMarked = cell.wrongMark.blnOpaque && !game.blnPaused;
    shpWCell(i).SetFill(blnMarked ? ToQColor(cell.wrongMark.lngColor) : QColor());
    shpCell(i).SetOutline(cell.outline.intWidth, ToQColor(cell.outline.lngColor));
    shpHighlight(i).setVisible(game.intHighlight != 0 && !game.blnPaused &&
                               cell.GetShownText() == std::to_string(game.intHighlight));
    lblSolution(i).SetText(ToQString(cell.strSolution));
    lblSolution(i).SetColor(ToQColor(game.boardColors.lngComputerText));
    lblSolution(i).setVisible(cell.blnGiven);
    lblCandidate(i).SetText(ToQString(cell.strNotes));
    lblCandidate(i).SetColor(colorUser);
    lblCell(i).SetText(ToQString(cell.strEntry));
    lblCell(i).SetColor(colorUser);
    lblCell(i).setVisible(cell.blnEntryShown);
}

void BoardScene::MirrorStacking(const Game& game) {
    if (intTopOutline_ == game.intTopOutline)
        return;
    if (intTopOutline_ != 0)
        Stack(shpCell(intTopOutline_), Layer::Cell);
    if (game.intTopOutline != 0)
        Stack(shpCell(game.intTopOutline), Layer::TopOutline);
    intTopOutline_ = game.intTopOutline;
}

int BoardScene::GetCellAt(QPointF point) const {
    // Where two labels overlap, the one of the later cell lies in front.
    for (int i = intCellCount; i >= 1; --i) {
        if (lblCell_[i]->ContainsPoint(point) || lblCandidate_[i]->ContainsPoint(point))
            return i;
    }
    return 0;
}

QRectF BoardScene::GetCellRect(int intCell) {
    return {dblMargin + dblPitch * GetColumn(intCell), dblMargin + dblPitch * GetRow(intCell),
            dblCellSize, dblCellSize};
}

} // namespace cellora
