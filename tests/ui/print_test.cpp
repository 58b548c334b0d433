#include "ui/print.h"

#include <QFile>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {
namespace {

constexpr double dblGridInches = 6735.0 / 1440;

/// A black grid, whose file is put aside as a copy of its own each time it is drawn. Both a file
/// being written and a finished one can be renamed.
class PrintedScene final : public QGraphicsScene {
public:
    explicit PrintedScene(const TemporaryFolder& folder) : folder_(folder) {}

    int CountDocuments() const { return intDocuments_; }

private:
    void drawBackground(QPainter* painter, const QRectF&) override {
        ++intDocuments_;
        QFile::rename(
            QString::fromStdString(folder_.Path("grid.pdf")),
            QString::fromStdString(folder_.Path("copy" + std::to_string(intDocuments_) + ".pdf")));
        painter->fillRect(QRectF(0, 0, 6735, 6735), Qt::black);
    }

    const TemporaryFolder& folder_;
    int intDocuments_ = 0;
};

/// Where the dark part of a page lies, in dots.
QRect FindDark(const QImage& image) {
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128)
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

void ExpectCentered(const QImage& page, int intResolution) {
    const QRect rect = FindDark(page);
    EXPECT_NEAR(rect.width(), dblGridInches * intResolution, 1.5);
    EXPECT_NEAR(rect.height(), dblGridInches * intResolution, 1.5);
    EXPECT_NEAR(rect.left() + rect.right() + 1, page.width(), 3);
    EXPECT_NEAR(rect.top() + rect.bottom() + 1, page.height(), 3);
}

class PrintTest : public testing::Test {
protected:
    PrintTest() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(folder.Path("grid.pdf")));
        printer.setPageSize(QPageSize(QPageSize::A4));
    }

    QString ReadCopy(int intCopy) {
        return QString::fromLatin1(
            QByteArray::fromStdString(folder.ReadBytes("copy" + std::to_string(intCopy) + ".pdf")));
    }

    /// The sheet of a document with one page, in points.
    QSizeF GetSheet(int intCopy) {
        static const QRegularExpression box(
            QStringLiteral(R"(/MediaBox \[0 0 ([\d.]+) ([\d.]+)\])"));
        static const QRegularExpression page(QStringLiteral(R"(/Type /Page\b)"));
        const QString strBytes = ReadCopy(intCopy);
        EXPECT_EQ(strBytes.count(page), 1);
        const QRegularExpressionMatch match = box.match(strBytes);
        return {match.captured(1).toDouble(), match.captured(2).toDouble()};
    }

    void ExpectSheet(int intCopy, QSizeF size) {
        EXPECT_NEAR(GetSheet(intCopy).width(), size.width(), 1);
        EXPECT_NEAR(GetSheet(intCopy).height(), size.height(), 1);
    }

    /// Measures the first copy by an independent reader of such files, where one is installed.
    void ExpectCenteredInFile() {
        const QString strReader = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
        ASSERT_FALSE(strReader.isEmpty()) << "the pages are measured with pdftoppm";
        const QString strPage = QString::fromStdString(folder.Path("page"));
        QProcess::execute(strReader, {QStringLiteral("-r"), QStringLiteral("144"),
                                      QStringLiteral("-singlefile"),
                                      QString::fromStdString(folder.Path("copy1.pdf")), strPage});
        ExpectCentered(QImage(strPage + QStringLiteral(".ppm")), 144);
    }

    TemporaryFolder folder;
    PrintedScene scene{folder};
    QPrinter printer{QPrinter::HighResolution};
};

TEST_F(PrintTest, EveryCopyIsADocumentOfOnePage) {
    EXPECT_TRUE(PrintCopies(printer, scene, 3));
    EXPECT_EQ(scene.CountDocuments(), 3);
    for (int intCopy = 1; intCopy <= 3; ++intCopy)
        ExpectSheet(intCopy, {595, 842});
    ExpectCenteredInFile();
}

TEST_F(PrintTest, ALandscapeSheetLiesOnItsSide) {
    printer.setPageOrientation(QPageLayout::Landscape);
    EXPECT_TRUE(PrintCopies(printer, scene, 1));
    ExpectSheet(1, {842, 595});
    ExpectCenteredInFile();
}

TEST_F(PrintTest, TheMarginsOfThePrinterDoNotMoveTheGrid) {
    printer.setPageMargins(QMarginsF(40, 10, 5, 60), QPageLayout::Millimeter);
    EXPECT_TRUE(PrintCopies(printer, scene, 1));
    ExpectSheet(1, {595, 842});
    ExpectCenteredInFile();
}

TEST_F(PrintTest, TheGridHasItsTrueSizeAtEveryResolution) {
    for (const int intResolution : {72, 150, 300}) {
        QImage page(intResolution * 8, intResolution * 11, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        RenderGrid(painter, scene, page.rect(), intResolution);
        painter.end();
        ExpectCentered(page, intResolution);
    }
}

TEST_F(PrintTest, AFailingPrinterStopsTheCopies) {
    printer.setOutputFileName(QString::fromStdString(folder.Path("missing/grid.pdf")));
    EXPECT_FALSE(PrintCopies(printer, scene, 2));
    EXPECT_EQ(scene.CountDocuments(), 0);
}

TEST_F(PrintTest, WithoutAPrinterAClearSentenceIsShown) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        return; // the machine's printers are left alone
    ScriptedDesktop desktop;
    Game game(desktop);
    PrintGame(game, scene, nullptr);
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].strTitle, "Printer Error!");
    EXPECT_NE(desktop.boxes[0].strText.find("No printer is installed"), std::string::npos);
    EXPECT_EQ(desktop.boxes[0].icon, MessageIcon::None);
    EXPECT_EQ(desktop.pointer, MousePointer::Default);
    EXPECT_EQ(scene.CountDocuments(), 0);
}

} // namespace
} // namespace cellora
