#include "ui/main/statistics_pane.h"

#include <iterator>

#include <QLabel>
#include <QPainter>

#include "rules/view.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/text.h"
#include "ui/desktop/twips.h"
#include "ui/main/layout_pass.h"

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

QLabel* MakeLabel(QWidget* parent, const QString& strText, QRect rect, const QFont& font,
                  Qt::Alignment alignment) {
    auto* const label = new QLabel(strText, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setGeometry(rect);
    return label;
}

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
    MakeLabel(this, QStringLiteral("Statistics"), ToPixelRect(120, 1440, 3495, 375),
              MakeFont(12, Weight::Bold), Qt::AlignHCenter);
    for (int intRow = 0; intRow < static_cast<int>(std::size(aRows)); ++intRow)
        AddRow(intRow);
    hide();
}

void StatisticsPane::AddRow(int intRow) {
    const RowDesign& design = aRows[intRow];
    const double dblTop = dblFirstTop + dblRowPitch * intRow;
    QLabel* const title =
        MakeLabel(this, QLatin1String(design.strTitle),
                  ToPixelRect(dblTitleLeft, dblTop, dblTitleRight - dblTitleLeft, dblRowHeight),
                  MakeFont(9.75, Weight::Bold), Qt::AlignRight);
    QLabel* const value = MakeLabel(
        this, QString(), ToPixelRect(dblValueLeft, dblTop, design.intValueWidth, dblRowHeight),
        MakeFont(9.75), Qt::AlignLeft);
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
    const QRect rectFrame =
        ToPixelRect(dblFrameInset, dblFrameInset, dblStatisticsWidth - 2 * dblFrameInset,
                    dblGridSize - 2 * dblFrameInset);
    QPainter painter(this);
    painter.drawPixmap(rectFrame.topLeft(), MakePixmap(QStringLiteral("statistics"),
                                                       rectFrame.size(), devicePixelRatioF()));
    painter.setPen(ToQColor(lngFrameColor_));
    painter.drawRect(rectFrame.adjusted(0, 0, -1, -1));
}

} // namespace cellora
