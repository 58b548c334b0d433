#include <QtWidgets>

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "ui/desktop/program_style.h"
#include "ui/desktop/snap.h"

namespace cellora {
namespace {

struct Place {
    double dblScale;
    int intStart;
    int intSize;
};

/// What a square widget at that place shows, within the device pixels that the toolkit lets it
/// paint or without that limit.
template <typename Draw>
QImage Show(const Place& place, bool blnLimited, Draw draw) {
    QImage image(60, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    if (blnLimited) {
        const int intStart = qRound(place.intStart * place.dblScale);
        const int intSize = qRound(place.intSize * place.dblScale);
        painter.setClipRect(intStart, intStart, intSize, intSize);
    }
    painter.scale(place.dblScale, place.dblScale);
    painter.translate(place.intStart, place.intStart);
    draw(painter, QRectF(0, 0, place.intSize, place.intSize));
    return image;
}

/// How wide the two sides are on the way through the middle, "1 1" if that is one pixel each.
std::string GetSides(const QImage& image, const Place& place, bool blnAcross) {
    const int intMiddle = qRound((place.intStart + place.intSize / 2.0) * place.dblScale);
    std::string strSides;
    int intWidth = 0;
    for (int n = 0; n < image.width(); ++n) {
        const QColor color =
            blnAcross ? image.pixelColor(n, intMiddle) : image.pixelColor(intMiddle, n);
        if (color == Qt::black)
            ++intWidth;
        else if (color != Qt::white)
            strSides += "blurred ";
        else if (intWidth > 0)
            strSides += std::to_string(std::exchange(intWidth, 0)) + ' ';
    }
    return strSides;
}

template <typename Draw>
void ExpectSides(double dblScale, const std::string& strSides, Draw draw) {
    for (int intStart = 0; intStart < 5; ++intStart)
        for (int intSize = 15; intSize < 20; ++intSize) {
            const Place place{dblScale, intStart, intSize};
            SCOPED_TRACE(testing::Message() << dblScale << ": " << intStart << ", " << intSize);
            const QImage image = Show(place, true, draw);
            EXPECT_EQ(GetSides(image, place, true), strSides);
            EXPECT_EQ(GetSides(image, place, false), strSides);
            EXPECT_EQ(image, Show(place, false, draw));
        }
}

TEST(Snap, FramesFacesAndRingsKeepFourEvenSidesAtEveryScale) {
    struct {
        double dblScale;
        const char* strFrame;
        const char* strRing;
    } const aScales[] = {{1, "1 1 ", "1 1 "},
                         {1.25, "1 1 ", "2 2 "},
                         {1.5, "1 1 ", "2 2 "},
                         {1.75, "2 2 ", "2 2 "},
                         {2, "2 2 ", "2 2 "}};
    const ProgramStyle programStyle;
    const QStyle& style = programStyle;
    QStyleOption option;
    option.state = QStyle::State_Enabled;
    option.palette = QPalette(Qt::white);
    option.palette.setColor(QPalette::Base, Qt::white);
    for (const auto edge : {QPalette::Mid, QPalette::Dark})
        option.palette.setColor(edge, Qt::black);
    for (const auto& row : aScales) {
        const auto fnFrame = [](QPainter& painter, const QRectF& rect) {
            DrawFrame(painter, rect, Qt::black);
        };
        ExpectSides(row.dblScale, row.strFrame, fnFrame);
        EXPECT_EQ(Show({row.dblScale, 0, 16}, true, fnFrame).pixelColor(0, 0), Qt::black);
        for (const auto face : {QStyle::PE_PanelButtonCommand, QStyle::PE_IndicatorCheckBox,
                                QStyle::PE_FrameLineEdit, QStyle::PE_FrameTabWidget})
            ExpectSides(row.dblScale, row.strFrame, [&](QPainter& painter, const QRectF& rect) {
                option.rect = rect.toRect();
                style.drawPrimitive(face, &option, &painter);
            });
        ExpectSides(row.dblScale, row.strRing, [](QPainter& painter, const QRectF& rect) {
            DrawFocusRing(painter, rect, Qt::black);
        });
    }
}

} // namespace
} // namespace cellora
