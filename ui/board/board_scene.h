#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include <QGraphicsScene>

#include "core/modCommon_Constants.h"
#include "core/numbered.h"
#include "ui/board/board_items.h"

namespace cellora {

struct CellView;
struct GridView;

/// The board: stacked rectangles and labels whose unit is the twip. It holds no facts of its own;
/// `Mirror` copies them from the view, and only what differs is drawn again. Cells are numbered 1
/// to 81, regions 0 to 8.
class BoardScene final : public QGraphicsScene {
public:
    BoardScene();
    ~BoardScene() override;

    /// `lngBackColor` is the colour of `picGrid`, which is printed with the grid.
    void Mirror(const GridView& grid, std::int32_t lngBackColor);

    /// Tints that cell while a click would write there; 0 for no cell.
    void HintCell(int intCell);

    /// The cell whose digit or notes label lies at that point, 0 where none does.
    int GetCellAt(QPointF point) const;

    /// The whole cell, in twips.
    static QRectF GetCellRect(int intCell);

    /// What was mirrored last.
    const GridView& grid() const { return *grid_; }

private:
    /// The elements of one cell; the scene owns them.
    struct CellItems {
        ShapeItem* shpWCell = nullptr;
        RingItem* shpHighlight = nullptr;
        CellOutlineItem* shpCell = nullptr;
        MarkItem* shpMark = nullptr;
        LabelItem* lblSolution = nullptr;
        LabelItem* lblCandidate = nullptr;
        LabelItem* lblCell = nullptr;
    };

    void MakeRegions();
    void MakeCell(int i);
    void MirrorRegions(const GridView& grid);
    void MirrorCell(int i, const CellView& cell);
    void MirrorStacking(int intTopOutline);

    std::array<ShapeItem*, 9> shp9_{};
    ShapeItem* shpBorder_ = nullptr;
    HintItem* shpHint_ = nullptr;
    int intHinted_ = 0;
    Numbered<CellItems, intCellCount> cells_;
    std::unique_ptr<GridView> grid_;
};

} // namespace cellora
