#include "ui/dialogs/help_pictures.h"

#include <cmath>

#include <QGraphicsItem>
#include <QPainter>

#include "core/modCellora.h"
#include "rules/check.h"
#include "rules/cursor.h"
#include "rules/view.h"
#include "ui/board/board_scene.h"
#include "ui/board/line_grid.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/snap.h"
#include "ui/desktop/twips.h"

namespace cellora {

namespace {

constexpr int intButtonSize = 26;

/// Round the cells: as far as the cursor reaches beyond them.
constexpr double dblCursorRoom = 2 * intTwipsPerPixel;

/// As far as an item may reach beyond its cell or region.
constexpr double dblItemRoom = 5 * intTwipsPerPixel;

struct ExampleCell {
    int intCell;
    bool blnGiven = false;
    const char* strSolution = "";
    const char* strEntry = "";
    const char* strNotes = "";
};

/// The middle region, and the middle cells of two others: their lines are thin on every side.
constexpr ExampleCell aExample[] = {
    {.intCell = 31, .blnGiven = true, .strSolution = "5"},
    {.intCell = 32, .strSolution = "3", .strEntry = "3"},
    {.intCell = 33, .strSolution = "8", .strNotes = "4 8 "},
    {.intCell = 41, .blnGiven = true, .strSolution = "9"},
    {.intCell = 42, .blnGiven = true, .strSolution = "6"},
    {.intCell = 49, .blnGiven = true, .strSolution = "7"},
    {.intCell = 51, .strSolution = "1", .strEntry = "1"},
    {.intCell = 14, .strSolution = "2", .strNotes = "2 5 7 "},
    {.intCell = 38, .strSolution = "4", .strEntry = "8"},
};

struct PartRow {
    const char* strName;
    const char* strDescription;
    int intFirstCell;
    int intLastCell;
    int intCursorCell;
};

/// In the order of `BoardPicture::Part`.
constexpr PartRow aParts[] = {
    {"picRegion", "A region of the grid", 31, 51, 40},
    {"picNotes", "A cell with notes", 14, 14, intCenterCell},
    {"picWrongCell", "A cell marked as wrong", 38, 38, 38},
};

void SetExample(Game& game, int intCursorCell) {
    game.phase = Phase::Playing;
    for (const ExampleCell& example : aExample) {
        Cell& cell = game.cells[example.intCell];
        cell.strSolution = example.strSolution;
        cell.blnGiven = example.blnGiven;
        cell.strEntry = example.strEntry;
        cell.strNotes = example.strNotes;
    }
    MarkErrors(game, true);
    MoveCursor(game, intCursorCell);
}

QRectF Widen(const QRectF& rect, double dblRoom) {
    return rect.adjusted(-dblRoom, -dblRoom, dblRoom, dblRoom);
}

} // namespace

BoardPicture::BoardPicture(Game& game, Part part, double dblZoom)
    : scene_(std::make_unique<BoardScene>()), dblScale_(dblZoom / intTwipsPerPixel) {
    const PartRow& row = aParts[static_cast<std::size_t>(part)];
    setObjectName(QLatin1String(row.strName));
    setAccessibleName(QLatin1String(row.strDescription));
    Game example(game.desktop, game.files);
    example.settings = game.settings;
    SetExample(example, row.intCursorCell);
    const View view = MakeView(example);
    scene_->Mirror(view.grid, view.picGrid.lngBackColor);
    rectCells_ =
        BoardScene::GetCellRect(row.intFirstCell) | BoardScene::GetCellRect(row.intLastCell);
    const int intSize =
        static_cast<int>(std::ceil((rectCells_.width() + 2 * dblCursorRoom) * dblScale_));
    setFixedSize(intSize, intSize);
}

BoardPicture::~BoardPicture() = default;

void BoardPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.scale(dblScale_, dblScale_);
    painter.translate(QPointF(dblCursorRoom, dblCursorRoom) - rectCells_.topLeft());
    painter.fillRect(LineGrid(painter, LineGrid::Device::Screen).Place(rectCells_),
                     scene_->backgroundBrush());
    // The lines of the cells beside would stick out.
    for (QGraphicsItem* const item : scene_->items(
             Widen(rectCells_, dblItemRoom), Qt::ContainsItemBoundingRect, Qt::AscendingOrder))
        item->paint(&painter, nullptr, this);
}

ButtonPicture::ButtonPicture(int intNumber, Look look) : intNumber_(intNumber), look_(look) {
    setObjectName(QStringLiteral("picButton%1").arg(intNumber));
    setAccessibleName(look == Look::Selected ? QStringLiteral("The selected number")
                                             : QStringLiteral("A complete number"));
    setFixedSize(intButtonSize, intButtonSize);
}

void ButtonPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double dblLine = SnapWidth(painter, 1);
    DrawPicture(painter, SnapInside(painter, rect()).adjusted(dblLine, dblLine, -dblLine, -dblLine),
                GetButtonPicture(intNumber_, look_ == Look::Complete));
    if (look_ == Look::Selected)
        DrawFrame(painter, rect(), palette().color(QPalette::WindowText));
}

} // namespace cellora
