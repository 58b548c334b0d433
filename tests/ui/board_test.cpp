#include <QtWidgets>

#include <gtest/gtest.h>

#include "core/cell.h"
#include "rules/view.h"
#include "ui/board/board_scene.h"
#include "ui/board/board_view.h"
#include "ui/main/print.h"

namespace cellora {
namespace {

constexpr double aZooms[] = {0.75, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3};

View MakeBoard(const char* strNotes) {
    View view;
    view.picGrid.blnVisible = true;
    for (CellView& cell : view.grid.cells) {
        cell.lblCandidate = {strNotes, lngColorBlue};
        cell.blnTakesClick = true;
    }
    return view;
}

QImage Grab(BoardView& board, const View& view, double dblZoom) {
    board.SetZoom(dblZoom);
    board.resize(QSize(449, 449) * dblZoom);
    board.Mirror(view);
    return board.grab().toImage();
}

/// The widths of the dark lines across the foot of the first row of cells.
QList<int> MeasureLines(const QImage& image) {
    QList<int> widths;
    const int intRow = image.height() * 50 / 449;
    bool blnBefore = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool blnDark = qGray(image.pixel(x, intRow)) < 128;
        if (blnDark && !blnBefore)
            widths << 0;
        if (blnDark)
            ++widths.last();
        blnBefore = blnDark;
    }
    return widths;
}

/// Pixels of the notes that the cursor covers or, at full size and above, touches from the side.
int CountTouched(const QImage& blank, const QImage& noted, const QImage& cursor) {
    const int intGap = cursor.width() < 449 ? 0 : 1;
    const auto IsCursor = [&cursor](int x, int y) { return cursor.pixel(x, y) == 0xFFFF0000; };
    int intTouched = 0;
    for (int y = 1; y < noted.height() - 1; ++y) {
        for (int x = 1; x < noted.width() - 1; ++x) {
            if (noted.pixel(x, y) != blank.pixel(x, y) &&
                (IsCursor(x, y) || IsCursor(x - intGap, y) || IsCursor(x + intGap, y)))
                ++intTouched;
        }
    }
    return intTouched;
}

TEST(Board, LinesOfOneKindAreEquallyWideAtEveryScale) {
    BoardScene scene;
    BoardView board(scene, nullptr);
    for (const double dblZoom : aZooms) {
        const QList<int> widths = MeasureLines(Grab(board, MakeBoard(""), dblZoom));
        ASSERT_EQ(widths.size(), 10) << dblZoom;
        EXPECT_LT(widths[1], widths[0]) << dblZoom;
        for (int n = 0; n < 10; ++n)
            EXPECT_EQ(widths[n], widths[n % 3 == 0 ? 0 : 1]) << dblZoom << " line " << n;
    }
}

TEST(Board, TheCursorTouchesNoNote) {
    BoardScene scene;
    BoardView board(scene, nullptr);
    for (const double dblZoom : aZooms) {
        const QImage blank = Grab(board, MakeBoard(""), dblZoom);
        const QImage noted = Grab(board, MakeBoard("8 0 6 8 8 "), dblZoom);
        for (const int i : {1, 5, 9, 32, 41, 42, 73, 81}) {
            View view = MakeBoard("8 0 6 8 8 ");
            view.grid.cells[i].intOutlineWidth = 4;
            view.grid.cells[i].lngOutlineColor = lngColorRed;
            view.grid.intTopOutline = i;
            EXPECT_EQ(CountTouched(blank, noted, Grab(board, view, dblZoom)), 0)
                << "cell " << i << " at " << dblZoom;
        }
    }
}

TEST(Board, TheCellUnderThePointerIsHintedOnTheScreenAlone) {
    BoardScene scene;
    BoardView board(scene, nullptr);
    View view = MakeBoard("");
    view.grid.cells[2].blnTakesClick = false;
    const QImage plain = Grab(board, view, 1);
    const auto Print = [&scene] {
        QImage page(500, 500, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        RenderGrid(painter, scene, page.rect(), 96);
        return page;
    };
    const QImage printed = Print();
    const auto Point = [&board](int intCell) {
        const QPointF place = board.GetCellRect(intCell).center();
        QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, {}, {});
        QApplication::sendEvent(board.viewport(), &move);
    };
    Point(1);
    EXPECT_NE(board.grab().toImage(), plain);
    EXPECT_EQ(Print(), printed);
    Point(2);
    EXPECT_EQ(board.grab().toImage(), plain);
    Point(1);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&board, &leave);
    EXPECT_EQ(board.grab().toImage(), plain);
}

} // namespace
} // namespace cellora
