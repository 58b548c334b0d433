#include "ui/statistics_pane.h"

#include <QLabel>
#include <QPainter>

#include "ui/layout_pass.h"
#include "ui/look.h"
#include "ui/number_selector.h"
#include "ui/pictures.h"
#include "ui/text.h"
#include "ui/twips.h"

namespace cellora {

namespace {

struct RowDesign {
    const char* strTitle;
    const char* strName;
    int intValueWidth;
    const std::string Game::*caption; ///< null for the number of cells, which never changes
};

constexpr RowDesign aRows[] = {
    {"Game time:", "lblTime", 855, &Game::lblTime},
    {"Difficulty:", "lblLevel", 1095, &Game::lblLevel},
    {"Total cells:", "lblTotalCells", 615, nullptr},
    {"Pre-solved cells:", "lblVisibleCells", 615, &Game::lblVisibleCells},
    {"Solved by you:", "lblSolvedByYou", 855, &Game::lblSolvedByYou},
    {"Cells remaining:", "lblCellsToSolve", 855, &Game::lblCellsToSolve},
    {"Incorrect cells:", "lblIncorrectCells", 1095, &Game::lblIncorrectCells},
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

void SetTextColor(QLabel& label, Color lngColor) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, ToQColor(lngColor));
    label.setPalette(palette);
}

} // namespace

StatisticsPane::StatisticsPane(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picStatistics"));
    setAccessibleName(QStringLiteral("Statistics"));
    lblStatistics_ =
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

void StatisticsPane::Mirror(const Game& game) {
    for (const Row& row : rows_) {
        if (row.caption == nullptr)
            continue;
        const QString strCaption = ToQString(game.*row.caption);
        if (row.value->text() == strCaption && !row.value->accessibleName().isEmpty())
            continue;
        row.value->setText(strCaption);
        row.value->setAccessibleName(row.title->text() + u' ' + strCaption);
    }
    MirrorColors(game);
    if (isVisibleTo(parentWidget()) != game.picStatistics.blnVisible)
        setVisible(game.picStatistics.blnVisible);
}

void StatisticsPane::MirrorColors(const Game& game) {
    if (lngBackColor_ != game.picStatistics.lngBackColor) {
        lngBackColor_ = game.picStatistics.lngBackColor;
        SetBackColor(*this, *lngBackColor_);
    }
    if (lngText_ != game.boardColors.lngStatisticsText) {
        lngText_ = game.boardColors.lngStatisticsText;
        SetTextColor(*lblStatistics_, *lngText_);
        for (const Row& row : rows_) {
            SetTextColor(*row.title, *lngText_);
            SetTextColor(*row.value, *lngText_);
        }
    }
    if (lngFrame_ != game.boardColors.lngStatisticsFrame) {
        lngFrame_ = game.boardColors.lngStatisticsFrame;
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
    painter.setPen(ToQColor(lngFrame_));
    painter.drawRect(rectFrame.adjusted(0, 0, -1, -1));
}

} // namespace cellora
