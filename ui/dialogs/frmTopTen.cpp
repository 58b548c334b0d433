#include "ui/dialogs/frmTopTen.h"

#include <algorithm>
#include <iterator>
#include <string>

#include <QHeaderView>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/desktop.h"
#include "core/levels.h"
#include "rules/hall_of_fame.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/program_style.h"
#include "ui/dialogs/level_box.h"

namespace cellora {

namespace {

constexpr int intMedalRanks = 3;
constexpr int intRowMedalSize = 20;
constexpr int intRowHeight = 25;

struct Column {
    int intIndex;
    const char* strTitle;
    Qt::AlignmentFlag alignment;
    QHeaderView::ResizeMode resizeMode;
};

constexpr Column columnRank{0, "Rank", Qt::AlignRight, QHeaderView::ResizeToContents};
constexpr Column columnName{1, "Name", Qt::AlignLeft, QHeaderView::Stretch};
constexpr Column columnTime{2, "Time", Qt::AlignRight, QHeaderView::ResizeToContents};
constexpr Column aColumns[] = {columnRank, columnName, columnTime};

/// Room at both sides of every cell and header.
class ListStyle final : public QProxyStyle {
public:
    ListStyle() : QProxyStyle(new ProgramStyle) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        switch (metric) {
        case PM_FocusFrameHMargin:
        case PM_HeaderMargin:
            return 6;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

} // namespace

frmTopTen::frmTopTen(Game& game, QWidget* parent)
    : Form(game, QStringLiteral("Top Ten"), {6750, 6390}, parent) {
    auto* const tabTopTen = new QTabWidget(this);
    tabTopTen->setObjectName(QStringLiteral("tabTopTen"));
    tabTopTen->setAccessibleName(windowTitle());
    tabTopTen->addTab(MakePage(), QStringLiteral("Hall of Fame"));
    Place(tabTopTen, 180, 180, 6390, 5475);
    MakeButtons();
    ShowStartingLevel();
    cboLevel_->setFocus();
}

QWidget* frmTopTen::MakePage() {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addWidget(MakeLevelBox(page));
    MakeList(page);
    layout->addWidget(lvwTopTen_);
    return page;
}

QWidget* frmTopTen::MakeLevelBox(QWidget* page) {
    auto* const row = new QWidget(page);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const lblLevel = new QLabel(QStringLiteral("Difficulty Level"), row);
    lblLevel->setObjectName(QStringLiteral("lblLevel"));
    cboLevel_ = new LevelBox(row);
    cboLevel_->setObjectName(QStringLiteral("cboLevel"));
    cboLevel_->setMinimumWidth(ToPixels(1815));
    cboLevel_->SetLabel(*lblLevel);
    connect(cboLevel_, &LevelBox::currentIndexChanged, this, &frmTopTen::cboLevel_Click);
    layout->addWidget(lblLevel);
    layout->addWidget(cboLevel_);
    layout->addStretch();
    return row;
}

void frmTopTen::MakeList(QWidget* page) {
    lvwTopTen_ = new QTreeWidget(page);
    lvwTopTen_->setObjectName(QStringLiteral("lvwTopTen"));
    lvwTopTen_->setAccessibleName(QStringLiteral("Best times"));
    auto* const style = new ListStyle;
    style->setParent(lvwTopTen_);
    lvwTopTen_->setStyle(style);
    lvwTopTen_->header()->setStyle(style);
    lvwTopTen_->setRootIsDecorated(false);
    lvwTopTen_->setUniformRowHeights(true);
    lvwTopTen_->setAlternatingRowColors(true);
    lvwTopTen_->setAllColumnsShowFocus(true);
    lvwTopTen_->setIconSize({intRowMedalSize, intRowMedalSize});
    MakeColumns();
}

void frmTopTen::MakeColumns() {
    lvwTopTen_->setColumnCount(static_cast<int>(std::size(aColumns)));
    lvwTopTen_->header()->setStretchLastSection(false);
    lvwTopTen_->header()->setSectionsMovable(false);
    lvwTopTen_->header()->setSectionsClickable(false);
    for (const Column& column : aColumns) {
        lvwTopTen_->headerItem()->setText(column.intIndex, QLatin1String(column.strTitle));
        lvwTopTen_->headerItem()->setTextAlignment(column.intIndex,
                                                   column.alignment | Qt::AlignVCenter);
        lvwTopTen_->header()->setSectionResizeMode(column.intIndex, column.resizeMode);
    }
}

void frmTopTen::MakeButtons() {
    QPushButton* const cmdOK =
        AddButton(this, QStringLiteral("cmdOK"), QStringLiteral("OK"), 4020, 5835);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmTopTen::accept);

    QPushButton* const cmdHelp =
        AddButton(this, QStringLiteral("cmdHelp"), QStringLiteral("&Help"), 5355, 5835);
    connect(cmdHelp, &QPushButton::clicked, this, &frmTopTen::ShowHelp);

    QPushButton* const cmdReset =
        AddButton(this, QStringLiteral("cmdReset"), QStringLiteral("Reset"), 180, 5835);
    connect(cmdReset, &QPushButton::clicked, this, &frmTopTen::cmdReset_Click);
}

void frmTopTen::ShowStartingLevel() {
    const int intLevel = std::max<int>(GetHighestRecordedLevel(game()), 1);
    cboLevel_->setCurrentIndex(intLevel - 1);
    ShowTopTenLevel(intLevel);
}

void frmTopTen::ShowTopTenLevel(int intLevel) {
    ClearTopTenList();
    LevelEntries entries;
    ReadHallOfFame(game(), intLevel, entries);
    for (int intRank = 1; intRank <= LevelEntries::size(); ++intRank) {
        if (entries[intRank].strName == strNoName)
            break;
        AddRow(intRank, entries[intRank]);
    }
}

void frmTopTen::AddRow(int intRank, const HallOfFameEntry& entry) {
    const QString strName = ToQString(entry.strName);
    auto* const row = new QTreeWidgetItem(
        lvwTopTen_, {QString::number(intRank), strName, ToQString(FormatEntryTime(entry))});
    row->setSizeHint(columnRank.intIndex, {0, intRowHeight});
    row->setToolTip(
        columnName.intIndex,
        QStringLiteral("<span style='white-space:pre'>%1</span>").arg(strName.toHtmlEscaped()));
    for (const Column& column : aColumns) {
        row->setTextAlignment(column.intIndex, column.alignment | Qt::AlignVCenter);
        if (intRank <= intMedalRanks)
            row->setFont(column.intIndex, MakeFont(8, Weight::Bold));
    }
    if (intRank <= intMedalRanks)
        row->setIcon(columnRank.intIndex, MakeIcon(QStringLiteral("medal_%1").arg(intRank)));
}

void frmTopTen::ClearTopTenList() {
    lvwTopTen_->clear();
}

void frmTopTen::cboLevel_Click() {
    ShowTopTenLevel(GetLevelNumber(ToStdString(cboLevel_->currentText())));
}

void frmTopTen::cmdReset_Click() {
    if (!desktop().Confirm(
            "Reset Scores?",
            std::string("WARNING: Resetting the Cellora 'Best Times' cannot be reversed.")
                .append(strParagraphBreak)
                .append("Are you sure you want to reset the scores?")))
        return;
    if (const auto reason = ResetHallOfFame(game()))
        ShowHallOfFameError(game(), *reason);
    else
        ShowTopTenLevel(1);
}

} // namespace cellora
