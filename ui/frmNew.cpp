#include "ui/frmNew.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "core/levels.h"
#include "flow/new_game.h"

namespace cellora {

frmNew::frmNew(Game& game, QWidget* parent)
    : Form(game, QStringLiteral("New Game"), {5055, 1725}, parent) {
    MakeLabels();
    MakeLevelBox();
    MakeButtons();
}

void frmNew::done(int intResult) {
    Form::done(intResult);
    game().desktop.SetMousePointer(MousePointer::Hourglass);
}

void frmNew::MakeLabels() {
    AddLabel(this, QStringLiteral("Please select your level of play -"), 240, 240, 3255)
        ->setObjectName(QStringLiteral("Label2"));
    AddLabel(this, QStringLiteral("Level 1 (easiest)... up to Level 30 (hardest)"), 240, 480, 3255)
        ->setObjectName(QStringLiteral("Label3"));
}

void frmNew::MakeLevelBox() {
    QLabel* const Label1 =
        AddLabel(this, QStringLiteral("Difficulty"), 480, 1000, 735, 255, Qt::AlignRight);
    Label1->setObjectName(QStringLiteral("Label1"));
    cboDifficulty = new QComboBox(this);
    cboDifficulty->setObjectName(QStringLiteral("cboDifficulty"));
    cboDifficulty->setAccessibleName(Label1->text());
    cboDifficulty->setMaxVisibleItems(15);
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel)
        cboDifficulty->addItem(ToQString(GetLevelName(intLevel)));
    Place(cboDifficulty, 1440, 960, 1815, 315);
    Label1->setBuddy(cboDifficulty);
}

void frmNew::MakeButtons() {
    QPushButton* const cmdOK = AddButton(this, QStringLiteral("OK"), 3720, 240);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmNew::cmdOK_Click);

    QPushButton* const cmdCancel = AddButton(this, QStringLiteral("Cancel"), 3720, 720);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdCancel, &QPushButton::clicked, this, &frmNew::reject);

    QPushButton* const cmdHelp = AddButton(this, QStringLiteral("Help"), 3720, 1200);
    cmdHelp->setObjectName(QStringLiteral("cmdHelp"));
    connect(cmdHelp, &QPushButton::clicked, this, &frmNew::ShowHelp);
}

void frmNew::cmdOK_Click() {
    StartNewGame(game(), ToStdString(cboDifficulty->currentText()));
    emit gameChanged();
}

} // namespace cellora
