#include "ui/board_view.h"

#include <QImage>
#include <QPaintEvent>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "play/cursor.h"
#include "tests/support/running_program.h"
#include "tests/support/scripted_desktop.h"
#include "ui/board_scene.h"
#include "ui/keys.h"

namespace cellora {

namespace {

constexpr Color lngRed = MakeColor(255, 0, 0);
constexpr Color lngBlue = MakeColor(0, 0, 255);

class BoardSceneTest : public testing::Test {
protected:
    void Mirror() { scene.Mirror(game); }

    QImage Draw() {
        Mirror();
        QImage image(449, 449, QImage::Format_RGB32);
        QPainter painter(&image);
        scene.render(&painter, image.rect(), scene.sceneRect());
        return image;
    }

    std::vector<const QGraphicsItem*> GetStack(QPointF point) {
        const auto items = scene.items(point, Qt::IntersectsItemBoundingRect, Qt::AscendingOrder);
        return {items.begin(), items.end()};
    }

    ScriptedDesktop desktop;
    Game game{desktop};
    BoardScene scene;
};

TEST_F(BoardSceneTest, EveryElementHasItsPlace) {
    EXPECT_EQ(scene.sceneRect(), QRectF(0, 0, 6735, 6735));
    EXPECT_EQ(scene.shpCell(1).boundingRect(), QRectF(120, 120, 735, 735));
    EXPECT_EQ(scene.shpCell(10).boundingRect(), QRectF(120, 840, 735, 735));
    EXPECT_EQ(scene.shpCell(81).boundingRect(), QRectF(5880, 5880, 735, 735));
    EXPECT_EQ(scene.shpWCell(81).boundingRect(), scene.shpCell(81).boundingRect());
    EXPECT_EQ(scene.lblSolution(81).boundingRect(), QRectF(5880, 6000, 735, 615));
    EXPECT_EQ(scene.lblCell(2).boundingRect(), QRectF(840, 240, 735, 615));
    EXPECT_EQ(scene.shp9(4).boundingRect(), QRectF(2280, 2280, 2175, 2175));
    EXPECT_EQ(scene.shp9(8).boundingRect(), QRectF(4440, 4440, 2175, 2175));
    EXPECT_EQ(scene.shpW9(5).boundingRect(), QRectF(4440, 2280, 2175, 2175));
    EXPECT_EQ(scene.shpBorder().boundingRect(), QRectF(120, 120, 6495, 6495));
    // Notes of the first row and column keep clear of the border.
    EXPECT_EQ(scene.lblCandidate(1).boundingRect(), QRectF(165, 150, 660, 255));
    EXPECT_EQ(scene.lblCandidate(2).boundingRect(), QRectF(870, 150, 660, 255));
    EXPECT_EQ(scene.lblCandidate(10).boundingRect(), QRectF(165, 855, 660, 255));
    EXPECT_EQ(scene.lblCandidate(81).boundingRect(), QRectF(5910, 5895, 660, 255));
}

TEST_F(BoardSceneTest, ElementsAreStackedFromTheRegionToTheEntry) {
    game.cells[41].blnGiven = true;
    Mirror();
    const QPointF point(3300, 3250); // in the digit's and the notes' label of cell 41
    EXPECT_EQ(GetStack(point), (std::vector<const QGraphicsItem*>{
                                   &scene.shp9(4), &scene.shpWCell(41), &scene.shpW9(4),
                                   &scene.shpBorder(), &scene.shpCell(41), &scene.lblSolution(41),
                                   &scene.lblCandidate(41), &scene.lblCell(41)}));
    DrawCursor(game);
    Mirror();
    EXPECT_EQ(GetStack(point).back(), &scene.shpCell(41));
    MoveCursor(game, 42);
    Mirror();
    EXPECT_EQ(GetStack({3885, 3250}).back(), &scene.shpCell(42)) << "over its neighbour's edge";
    ResetCandidate(game);
    Mirror();
    EXPECT_EQ(GetStack({4020, 3250}).back(), &scene.lblCell(42));
}

TEST_F(BoardSceneTest, ColorHelpersReachTheirElementsOnly) {
    ApplyGridLineColor(game, lngRed);
    ApplyRegionColor(game, lngBlue);
    ApplyUserFontColor(game, lngRed);
    ApplyComputerFontColor(game, lngBlue);
    Mirror();
    for (int k = 0; k < 9; ++k) {
        EXPECT_EQ(scene.shp9(k).outlineColor(), QColor(Qt::red));
        EXPECT_EQ(scene.shpW9(k).outlineColor(), QColor(Qt::black));
        EXPECT_EQ(scene.shp9(k).fillColor(), k % 2 == 0 ? QColor(Qt::blue) : QColor());
    }
    EXPECT_EQ(scene.shpBorder().outlineColor(), QColor(Qt::red));
    for (int i = 1; i <= intCellCount; ++i) {
        EXPECT_EQ(scene.shpCell(i).outlineColor(), QColor(Qt::red));
        EXPECT_EQ(scene.lblCell(i).color(), QColor(Qt::red));
        EXPECT_EQ(scene.lblCandidate(i).color(), QColor(Qt::red));
        EXPECT_EQ(scene.lblSolution(i).color(), QColor(Qt::blue));
    }
}

TEST_F(BoardSceneTest, OutlinesAreDrawnInsideInWholePixels) {
    game.colors.lngColorGridCursor = lngRed;
    DrawCursor(game);
    const QImage image = Draw();
    // Cell 41 begins 200 pixels from the left and the top, its neighbour shares the pixel 248.
    for (int x = 200; x < 249; ++x) {
        const bool blnInOutline = x < 204 || x > 244;
        EXPECT_EQ(image.pixelColor(x, 224) == QColor(Qt::red), blnInOutline) << x;
    }
    EXPECT_NE(image.pixelColor(199, 224), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(249, 224), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(8, 30), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(7, 30), QColor(Qt::white));
}

TEST_F(BoardSceneTest, AHighlightIsAShapeUnderTheDigit) {
    game.cells[1].strEntry = "5";
    game.cells[2].strEntry = "6";
    const QImage plain = Draw();
    game.intHighlight = 5;
    const QImage highlighted = Draw();
    EXPECT_NE(plain.copy(8, 8, 48, 48), highlighted.copy(8, 8, 48, 48));
    EXPECT_EQ(plain.copy(60, 8, 48, 48), highlighted.copy(60, 8, 48, 48));
    game.blnPaused = true;
    EXPECT_EQ(plain, Draw());
}

TEST(BoardKeys, BothDigitRowsAndTheEditingKeysHaveTheirCodes) {
    const auto GetCode = [](int intKey, Qt::KeyboardModifiers modifiers = {}, quint32 scan = 0) {
        return GetVirtualKey(QKeyEvent(QEvent::KeyPress, intKey, modifiers, scan, 0, 0));
    };
    EXPECT_EQ(GetCode(Qt::Key_1), 49);
    EXPECT_EQ(GetCode(Qt::Key_9), 57);
    EXPECT_EQ(GetCode(Qt::Key_1, Qt::KeypadModifier), 97);
    EXPECT_EQ(GetCode(Qt::Key_9, Qt::KeypadModifier), 105);
    EXPECT_EQ(GetCode(Qt::Key_Backspace), 8);
    EXPECT_EQ(GetCode(Qt::Key_Space), 32);
    EXPECT_EQ(GetCode(Qt::Key_Delete), 46);
    EXPECT_EQ(GetCode(Qt::Key_Down), 40);
    for (const int intKey : {Qt::Key_0, Qt::Key_A, Qt::Key_F5, Qt::Key_Return})
        EXPECT_EQ(GetCode(intKey), 0) << intKey;
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        // The key "2" of the row, where Shift makes a quotation mark of it.
        EXPECT_EQ(GetCode(Qt::Key_QuoteDbl, Qt::ShiftModifier, 11), 50);
    }
}

TEST(BoardView, ReportsTheCellUnderTheMouse) {
    RunningProgram run;
    run.StartGame();
    BoardView& grid = run.grid();
    QSignalSpy spyCell(&grid, &BoardView::cellReleased);
    EXPECT_EQ(grid.size(), QSize(449, 449));
    EXPECT_EQ(grid.GetCellRect(81).topLeft(), QPoint(392, 392));
    for (const auto& [position, intCell] : {std::pair{QPoint(30, 30), 1},
                                            {QPoint(30, 60), 10},
                                            {QPoint(436, 436), 81},
                                            {QPoint(3, 3), 0},
                                            {QPoint(445, 224), 0}}) {
        spyCell.clear();
        QTest::mouseClick(grid.viewport(), Qt::MiddleButton, {}, position);
        EXPECT_EQ(spyCell.count(), intCell == 0 ? 0 : 1);
        EXPECT_EQ(spyCell.value(0).value(0).toInt(), intCell);
    }
    // The first click of a double click counts, and so does the second.
    spyCell.clear();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, {30, 30});
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, {30, 30});
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, {30, 30});
    EXPECT_EQ(spyCell.count(), 2);
}

/// Adds up how many pixels a widget paints.
class PaintMeter final : public QObject {
public:
    explicit PaintMeter(QWidget& widget) { widget.installEventFilter(this); }

    /// Returns once the widget has been left alone for a while.
    int Settle() {
        for (int intBefore = -1; intBefore != intPixels_;) {
            intBefore = intPixels_;
            QTest::qWait(60);
        }
        return std::exchange(intPixels_, 0);
    }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            for (const QRect& rect : static_cast<QPaintEvent*>(event)->region())
                intPixels_ += rect.width() * rect.height();
        }
        return false;
    }

    int intPixels_ = 0;
};

TEST(BoardView, AKeyPressRepaintsOnlyWhatChanged) {
    RunningProgram run;
    run.StartGame();
    // The clock's label is painted elsewhere, the board stands still without the player.
    run.MoveTo(run.FindEmptyCell(30));
    constexpr int intCellPixels = 51 * 51; // of the board's 201601
    PaintMeter meter(*run.grid().viewport());
    meter.Settle();
    EXPECT_EQ(meter.Settle(), 0);

    run.Press(Qt::Key_Right);
    const int intMoved = meter.Settle();
    EXPECT_GT(intMoved, 0);
    EXPECT_LE(intMoved, 2 * intCellPixels);

    run.Press(Qt::Key_Left);
    meter.Settle();
    run.Type(run.GetWrongDigit(run.game().intCursorCell));
    const int intTyped = meter.Settle();
    EXPECT_GT(intTyped, 0);
    EXPECT_LE(intTyped, intCellPixels);

    run.Press(Qt::Key_A);
    EXPECT_EQ(meter.Settle(), 0);
    emit run.program.desktop().tick(Timer::tmr);
    EXPECT_EQ(meter.Settle(), 0);
}

} // namespace

} // namespace cellora
