#include <QPrinter>
#include <QtWidgets>

#include <gtest/gtest.h>

#include "tests/support/golden.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/window_text.h"
#include "ui/main/layout_pass.h"
#include "ui/main/print.h"

namespace cellora {
namespace {

QString AsText(const LayoutRect& rect) {
    return Join("  ", rect.dblLeft, ',', rect.dblTop, ' ', rect.dblWidth, 'x', rect.dblHeight);
}

/// Where the panes lie in a window of that size.
QString DescribeLayout(LayoutInput input, double dblWidth, double dblHeight) {
    input.dblWidth = dblWidth;
    input.dblHeight = dblHeight;
    const Layout layout = ComputeLayout(input);
    return Join("  ", dblWidth, 'x', dblHeight, ':', AsText(layout.tbrMain),
                AsText(layout.picBorder), AsText(layout.picMenuShadow), AsText(layout.picGrid),
                AsText(layout.picButtons), AsText(layout.picStatistics), '\n');
}

TEST(Numbers, EveryCombinationOfPanesHasItsPlaces) {
    QString strText;
    for (int i = 0; i < 16; ++i) {
        const LayoutInput input{.blnToolbarVisible = (i & 1) == 0,
                                .blnStatusBarVisible = (i & 2) == 0,
                                .blnStatisticsChecked = (i & 4) == 0,
                                .blnSelectorChecked = (i & 8) == 0};
        strText += Join(input.blnToolbarVisible ? "toolbar " : "",
                        input.blnStatusBarVisible ? "status bar " : "",
                        input.blnStatisticsChecked ? "statistics " : "",
                        input.blnSelectorChecked ? "selector " : "", '\n',
                        DescribeLayout(input, 12120, 9690),
                        DescribeLayout(input, GetFitWidth(input), GetFitHeight(input)),
                        DescribeLayout(input, 100, 200));
    }
    for (const std::int16_t intZoom : aZoomSteps) {
        const LayoutInput input{.intZoom = intZoom};
        LayoutInput screen{.dblWidth = GetFitWidth(input) * 1.0,
                           .dblHeight = GetFitHeight(input) * 1.0};
        EXPECT_EQ(GetLargestZoom(screen), intZoom);
        --screen.dblHeight;
        strText += Join("zoom ", intZoom, ", or on a lower screen ", GetLargestZoom(screen), '\n',
                        DescribeLayout(input, screen.dblWidth, screen.dblHeight + 1));
    }
    ExpectFile("ui/numbers/layout.txt", strText.toStdString());
}

TEST(Numbers, TheLookIsTheProgramsOwn) {
    const QPalette palette = QApplication::palette();
    QString strText =
        Join(QApplication::font().families().join(u','), QApplication::font().pixelSize(), ' ',
             palette.resolveMask(), ' ',
             QApplication::style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), '\n');
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const auto role = static_cast<QPalette::ColorRole>(i);
        strText += Join(palette.color(QPalette::Active, role).name(), ' ',
                        palette.color(QPalette::Disabled, role).name(), '\n');
    }
    ExpectFile("ui/numbers/look.txt", strText.toStdString());
}

/// Notes where on which device it is drawn.
class NotedScene final : public QGraphicsScene {
public:
    NotedScene() : QGraphicsScene(0, 0, 6735, 6735) {}

    QString strDrawn;

private:
    void drawBackground(QPainter* painter, const QRectF&) override {
        const QRectF place = painter->combinedTransform().mapRect(sceneRect());
        strDrawn += Join(Qt::fixed, qSetRealNumberPrecision(1), place.x(), ',', place.y(), ' ',
                         place.width(), 'x', place.height(), " on ", painter->device()->width(),
                         'x', painter->device()->height(), '\n');
    }
};

TEST(Numbers, TheGridIsPrintedInItsTrueSizeInTheMiddleOfTheSheet) {
    const TemporaryFolder folder;
    NotedScene scene;
    for (const int intResolution : {72, 150, 300}) {
        QImage page(intResolution * 8, intResolution * 11, QImage::Format_RGB32);
        QPainter painter(&page);
        RenderGrid(painter, scene, page.rect(), intResolution);
    }
    for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(QString::fromStdString(folder.Path("grid.pdf")));
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setPageOrientation(orientation);
        printer.setPageMargins(QMarginsF(40, 10, 5, 60), QPageLayout::Millimeter);
        EXPECT_TRUE(PrintCopies(printer, scene, 2));
        printer.setOutputFileName(QString::fromStdString(folder.Path("missing/grid.pdf")));
        EXPECT_FALSE(PrintCopies(printer, scene, 2));
    }
    ExpectFile("ui/numbers/printed.txt", scene.strDrawn.toStdString());
}

} // namespace
} // namespace cellora
