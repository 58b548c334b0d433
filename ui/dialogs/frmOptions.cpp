#include "ui/dialogs/frmOptions.h"

#include <iterator>

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/options.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/dialogs/color_swatch.h"
#include "ui/dialogs/frmCDG.h"

namespace cellora {

namespace {

struct SlotRow {
    ColorSlot slot;
    const char* strTab;
    const char* strLabel;
    const char* strSwatch;
    const char* strToolTip;
};

/// Tab by tab, each from top to bottom.
constexpr SlotRow aSlotRows[] = {
    {lngColorScreenBackground, "Screen", "Background", "picScreenBackground",
     "Edit the window background color..."},
    {lngColorGridBackground, "Grid", "Background", "picGridBackground",
     "Edit the grid background color..."},
    {lngColorGridX, "Grid", "Background '&X'", "picGridX", "Edit the grid background 'X' color..."},
    {lngColorGridLines, "Grid", "&Lines", "picGridLines", "Edit the grid line color..."},
    {lngColorIncorrectCell, "Grid", "&Incorrect Cell", "picGridIncorrectCell",
     "Edit the color for incorrect cells..."},
    {lngColorGridCursor, "Cursor", "&Cursor", "picGridCursor", "Edit the cursor color..."},
    {lngColorFontUser, "Font", "&User", "picFontUser", "Edit the user's font color..."},
    {lngColorFontComputer, "Font", "C&omputer", "picFontComputer",
     "Edit the computer's font color..."},
};

constexpr const char* aTabs[] = {"Screen", "Grid", "Cursor", "Font"};

constexpr double dblFirstRow = 165;
constexpr double dblRowPitch = 465;
constexpr double dblRowHeight = 375;
constexpr double dblSwatchLeft = 1455;
constexpr double dblSwatchWidth = 2775;
constexpr double dblColorButtonLeft = 4335;
constexpr QSize sizePalette(20, 20);

/// The tooltip as a name: without the dots that announce a dialog.
QString MakeAccessibleName(const QString& strToolTip) {
    return strToolTip.chopped(3);
}

} // namespace

frmOptions::frmOptions(Game& game, QWidget* parent)
    : Form(game, QStringLiteral("Options"), {5415, 3615}, parent) {
    setObjectName(QStringLiteral("frmOptions"));
    MakeTabs();
    MakeButtons();
    Form_Load();
}

frmOptions::~frmOptions() = default;

void frmOptions::MakeTabs() {
    auto* const tab = new QTabWidget(this);
    tab->setObjectName(QStringLiteral("tab"));
    tab->setAccessibleName(windowTitle());
    Place(tab, 120, 120, 5175, 2775);
    for (const char* const strTab : aTabs) {
        QFrame* const frame = MakePage(tab, QLatin1String(strTab));
        double dblTop = dblFirstRow;
        for (int intRow = 0; intRow < static_cast<int>(std::size(aSlotRows)); ++intRow) {
            if (QLatin1String(aSlotRows[intRow].strTab) != QLatin1String(strTab))
                continue;
            MakeSlot(frame, intRow, dblTop);
            dblTop += dblRowPitch;
        }
        if (QLatin1String(strTab) == QLatin1String("Cursor")) {
            chkCursor_ = new QCheckBox(QStringLiteral("Disappearing Cursor?"), frame);
            chkCursor_->setObjectName(QStringLiteral("chkCursor"));
            Place(chkCursor_, dblSwatchLeft, dblTop, dblSwatchWidth, dblRowHeight);
            connect(chkCursor_, &QCheckBox::clicked, this, [this] { chkCursor_Click(); });
            dblTop += dblRowPitch;
        }
        Place(frame, 120, 120, 4875, dblTop - dblRowPitch + dblRowHeight + dblFirstRow);
    }
}

QFrame* frmOptions::MakePage(QTabWidget* tab, const QString& strCaption) {
    auto* const page = new QWidget;
    tab->addTab(page, strCaption);
    auto* const frame = new QFrame(page);
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    return frame;
}

void frmOptions::MakeSlot(QFrame* frame, int intSlotRow, double dblTop) {
    const SlotRow& row = aSlotRows[intSlotRow];
    QLabel* const label = AddLabel(frame, QStringLiteral("lblColor%1").arg(row.slot),
                                   QLatin1String(row.strLabel), 150, dblTop, 1275, dblRowHeight);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    auto* const swatch = new ColorSwatch(frame);
    swatch->setObjectName(QLatin1String(row.strSwatch));
    Place(swatch, dblSwatchLeft, dblTop, dblSwatchWidth, dblRowHeight);
    picColor_[row.slot] = swatch;

    QPushButton* const button = AddButton(frame, QStringLiteral("cmdColor%1").arg(row.slot), {},
                                          dblColorButtonLeft, dblTop, dblRowHeight, dblRowHeight);
    button->setAutoDefault(true);
    button->setToolTip(QLatin1String(row.strToolTip));
    button->setAccessibleName(MakeAccessibleName(button->toolTip()));
    button->setIcon(MakeIcon(QStringLiteral("palette")));
    button->setIconSize(sizePalette);
    label->setBuddy(button);
    cmdColor_[row.slot] = button;
    connect(button, &QPushButton::clicked, this, [this, slot = row.slot] { cmdColor_Click(slot); });
}

void frmOptions::MakeButtons() {
    struct ButtonRow {
        const char* strName;
        const char* strCaption;
        const char* strToolTip;
        void (frmOptions::*fnClick)();
    };
    static constexpr ButtonRow aButtons[] = {
        {"cmdOK", "OK", "Apply the changes and exit the options dialog...",
         &frmOptions::cmdOK_Click},
        {"cmdCancel", "Cancel", "Exit without saving any changes...", &frmOptions::reject},
        {"cmdApply", "Apply", "Apply the current changes without closing the options window...",
         &frmOptions::cmdApply_Click},
        {"cmdHelp", "Help", "Show help for the options dialog...", &frmOptions::ShowHelp},
    };
    double dblLeft = 120;
    for (const ButtonRow& row : aButtons) {
        QPushButton* const button = AddButton(this, QLatin1String(row.strName),
                                              QLatin1String(row.strCaption), dblLeft, 3120);
        button->setToolTip(QLatin1String(row.strToolTip));
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, row.fnClick);
        dblLeft += 1320;
    }
    findChild<QPushButton*>(QStringLiteral("cmdOK"))->setDefault(true);
    cmdApply_ = findChild<QPushButton*>(QStringLiteral("cmdApply"));
}

void frmOptions::Form_Load() {
    options_ = game().settings;
    for (const SlotRow& row : aSlotRows)
        ShowColor(row.slot);
    chkCursor_->setChecked(options_.intCursorOption == 1);
    cmdApply_->setEnabled(false);
    desktop().SetMousePointer(MousePointer::Default);
}

void frmOptions::ShowColor(ColorSlot slot) {
    const QColor color = ToQColor(options_.colors[slot]);
    picColor_[slot]->SetColor(color);
    cmdColor_[slot]->setAccessibleDescription(color.name());
}

void frmOptions::cmdColor_Click(ColorSlot slot) {
    const std::optional<QColor> color = frmCDG(this).ShowColor();
    if (!color)
        return;
    options_.colors[slot] = ToColor(*color);
    ShowColor(slot);
    cmdApply_->setEnabled(true);
}

void frmOptions::chkCursor_Click() {
    cmdApply_->setEnabled(true);
}

void frmOptions::cmdOK_Click() {
    Apply();
    accept();
}

void frmOptions::cmdApply_Click() {
    Apply();
    cmdApply_->setEnabled(false);
}

void frmOptions::Apply() {
    options_.intCursorOption = chkCursor_->isChecked() ? 1 : 0;
    ApplyOptions(game(), options_);
    emit gameChanged();
}

} // namespace cellora
