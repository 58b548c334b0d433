#include "ui/main/statistics_pane.h"

#include <iterator>

#include <QLabel>
#include <QPainter>

#include "rules/view.h"
#include "ui/desktop/snap.h"
#include "ui/desktop/text.h"
#include "ui/desktop/twips.h"

namespace cellora {

namespace {

struct RowDesign {
    const char* strTitle;
    const char* strName;
    int intValueWidth;
    std::string StatisticsView::*caption; ///< null for the number of cells, which never changes
};

constexpr RowDesign aRows[] = {
    {"Game time:", "lblTime", 855, &StatisticsView::lblTime},
    {"Difficulty:", "lblLevel", 1095, &StatisticsView::lblLevel},
    {"Total cells:", "lblTotalCells", 615, nullptr},
    {"Pre-solved cells:", "lblVisibleCells", 615, &StatisticsView::lblVisibleCells},
    {"Solved by you:", "lblSolvedByYou", 855, &StatisticsView::lblSolvedByYou},
    {"Cells remaining:", "lblCellsToSolve", 855, &StatisticsView::lblCellsToSolve},
    {"Incorrect cells:", "lblIncorrectCells", 1095, &StatisticsView::lblIncorrectCells},
};

constexpr double dblFirstTop = 2160;
constexpr double dblRowPitch = 480;
constexpr double dblRowHeight = 255;
constexpr double dblTitleLeft = 135;
constexpr double dblTitleRight = 2175;
constexpr double dblValueLeft = 2400;
constexpr double dblFrameInset = 120;
constexpr double dblHairlineInset = 360;
constexpr float dblHairlineOpacity = 0.15F;

/// The labels have the text colour of the pane they lie in.
void SetTextColor(QWidget& pane, const QColor& color) {
    QPalette palette = pane.palette();
    if (palette.color(QPalette::WindowText) == color)
        return;
    palette.setColor(QPalette::WindowText, color);
    pane.setPalette(palette);
}

} // namespace

StatisticsPane::StatisticsPane(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picStatistics"));
    setAccessibleName(QStringLiteral("Statistics"));
    AddLabel(QStringLiteral("Statistics"), {120, 1440, 3495, 375}, {12, Weight::Bold},
             Qt::AlignHCenter);
    for (int intRow = 0; intRow < static_cast<int>(std::size(aRows)); ++intRow)
        AddRow(intRow);
    SetZoom(1);
    hide();
}

void StatisticsPane::SetZoom(double dblZoom) {
    dblZoom_ = dblZoom;
    for (const PlacedLabel& label : labels_) {
        const QRectF& rect = label.rectTwips;
        label.label->setGeometry(ToPixelRect(rect.x() * dblZoom, rect.y() * dblZoom,
                                             rect.width() * dblZoom, rect.height() * dblZoom));
        label.label->setFont(MakeFont(label.font.dblPoints * dblZoom, label.font.weight));
    }
    update();
}

QLabel* StatisticsPane::AddLabel(const QString& strText, const QRectF& rectTwips, LabelFont font,
                                 Qt::Alignment alignment) {
    auto* const label = new QLabel(strText, this);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment | Qt::AlignVCenter);
    labels_.push_back({label, rectTwips, font});
    return label;
}

void StatisticsPane::AddRow(int intRow) {
    const RowDesign& design = aRows[intRow];
    const double dblTop = dblFirstTop + dblRowPitch * intRow;
    QLabel* const title =
        AddLabel(QLatin1String(design.strTitle),
                 {dblTitleLeft, dblTop, dblTitleRight - dblTitleLeft, dblRowHeight},
                 {9.75, Weight::Bold}, Qt::AlignRight);
    QLabel* const value = AddLabel(
        {}, {dblValueLeft, dblTop, static_cast<double>(design.intValueWidth), dblRowHeight},
        {9.75, Weight::Regular}, Qt::AlignLeft);
    value->setObjectName(QLatin1String(design.strName));
    if (design.caption == nullptr) {
        value->setText(QString::number(intCellCount));
        value->setAccessibleName(title->text() + u' ' + value->text());
    }
    rows_.push_back({title, value, design.caption});
}

void StatisticsPane::Mirror(const View& view) {
    MirrorRows(view.statistics);
    MirrorColors(view.statistics);
    SetBackColor(*this, view.picStatistics.lngBackColor);
    if (isVisibleTo(parentWidget()) != view.picStatistics.blnVisible)
        setVisible(view.picStatistics.blnVisible);
}

void StatisticsPane::MirrorRows(const StatisticsView& statistics) {
    for (const Row& row : rows_) {
        if (row.caption == nullptr)
            continue;
        const QString strCaption = ToQString(statistics.*row.caption);
        if (row.value->text() == strCaption && !row.value->accessibleName().isEmpty())
            continue;
        row.value->setText(strCaption);
        row.value->setAccessibleName(row.title->text() + u' ' + strCaption);
    }
}

void StatisticsPane::MirrorColors(const StatisticsView& statistics) {
    SetTextColor(*this, ToQColor(statistics.lngTextColor));
    if (lngFrameColor_ != statistics.lngFrameColor) {
        lngFrameColor_ = statistics.lngFrameColor;
        update();
    }
}

void StatisticsPane::paintEvent(QPaintEvent*) {
    const double dblInset = dblFrameInset * dblZoom_ / intTwipsPerPixel;
    const QRectF rectFrame = QRectF(rect()).adjusted(dblInset, dblInset, -dblInset, -dblInset);
    QPainter painter(this);
    DrawPicture(painter, rectFrame, QStringLiteral("statistics"));
    DrawFrame(painter, rectFrame, ToQColor(lngFrameColor_), dblZoom_);
    DrawHairlines(painter);
}

void StatisticsPane::DrawHairlines(QPainter& painter) const {
    const double dblScale = dblZoom_ / intTwipsPerPixel;
    const double dblLine = SnapWidth(painter, dblZoom_);
    QColor color = palette().color(QPalette::WindowText);
    color.setAlphaF(dblHairlineOpacity);
    for (int intRow = 1; intRow < static_cast<int>(std::size(aRows)); ++intRow) {
        const double dblTop = dblFirstTop + dblRowPitch * (intRow - 0.5) + dblRowHeight / 2;
        const QRectF rectLine =
            SnapInside(painter, {dblHairlineInset * dblScale, dblTop * dblScale,
                                 width() - 2 * dblHairlineInset * dblScale, 2 * dblLine});
        painter.fillRect(QRectF(rectLine.topLeft(), QSizeF(rectLine.width(), dblLine)), color);
    }
}

} // namespace cellora
