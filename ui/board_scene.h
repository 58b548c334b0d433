#pragma once

#include <QGraphicsScene>

#include "core/modCellora.h"
#include "ui/board_items.h"

namespace cellora {

/// The board: stacked rectangles and labels whose unit is the twip. It holds no facts of its own;
/// `Mirror` copies them from the game, and only what differs is drawn again.
class BoardScene final : public QGraphicsScene {
public:
    BoardScene();

    void Mirror(const Game& game);

    /// The cell 1 to 81 whose digit or notes label lies at that point, 0 where none does.
    int GetCellAt(QPointF point) const;

    /// The whole cell, in twips.
    static QRectF GetCellRect(int intCell);

    ShapeItem& shpCell(int i) { return *shpCell_[i]; }
    ShapeItem& shpWCell(int i) { return *shpWCell_[i]; }
    LabelItem& lblSolution(int i) { return *lblSolution_[i]; }
    LabelItem& lblCandidate(int i) { return *lblCandidate_[i]; }
    LabelItem& lblCell(int i) { return *lblCell_[i]; }
    RingItem& shpHighlight(int i) { return *shpHighlight_[i]; }
    ShapeItem& shpBorder() { return *shpBorder_; }

    /// Regions are counted 0 to 8.
    ShapeItem& shp9(int k) { return *shp9_[k + 1]; }
    ShapeItem& shpW9(int k) { return *shpW9_[k + 1]; }

private:
    void MakeRegions();
    void MakeCell(int i);
    void MirrorRegions(const Game& game);
    void MirrorCell(int i, const Game& game);
    void MirrorStacking(const Game& game);

    Numbered<ShapeItem*, 9> shp9_;
    Numbered<ShapeItem*, 9> shpW9_;
    Numbered<ShapeItem*, intCellCount> shpWCell_;
    Numbered<RingItem*, intCellCount> shpHighlight_;
    ShapeItem* shpBorder_ = nullptr;
    Numbered<ShapeItem*, intCellCount> shpCell_;
    Numbered<LabelItem*, intCellCount> lblSolution_;
    Numbered<LabelItem*, intCellCount> lblCandidate_;
    Numbered<LabelItem*, intCellCount> lblCell_;
    int intTopOutline_ = 0;
};

} // namespace cellora
