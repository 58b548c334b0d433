#include "ui/dialogs/frmNew.h"

#include <QLabel>
#include <QPushButton>

#include "core/desktop.h"
#include "rules/new_game.h"
#include "ui/dialogs/level_box.h"

namespace cellora {

frmNew::frmNew(Game& game, QWidget* parent)
    : Form(game, QStringLiteral("New Game"), {5055, 1725}, parent) {
    MakeLabels();
    MakeLevelBox();
    MakeButtons();
}

void frmNew::done(int intResult) {
    Form::done(intResult);
    desktop().SetMousePointer(MousePointer::Hourglass);
}

void frmNew::MakeLabels() {
    AddLabel(this, QStringLiteral("Label2"), QStringLiteral("Please select your level of play -"),
             240, 240, 3255);
    AddLabel(this, QStringLiteral("Label3"),
             QStringLiteral("Level 1 (easiest)... up to Level 30 (hardest)"), 240, 480, 3255);
}

void frmNew::MakeLevelBox() {
    QLabel* const Label1 =
        AddLabel(this, QStringLiteral("Label1"), QStringLiteral("Difficulty"), 480, 1000, 735, 225);
    // In line with the text in the box.
    Label1->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cboDifficulty_ = new LevelBox(this);
    cboDifficulty_->setObjectName(QStringLiteral("cboDifficulty"));
    cboDifficulty_->SetLabel(*Label1);
    Place(cboDifficulty_, 1440, 960, 1815, 315);
}

void frmNew::MakeButtons() {
    QPushButton* const cmdOK =
        AddButton(this, QStringLiteral("cmdOK"), QStringLiteral("OK"), 3720, 240);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmNew::cmdOK_Click);

    QPushButton* const cmdCancel =
        AddButton(this, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), 3720, 720);
    connect(cmdCancel, &QPushButton::clicked, this, &frmNew::reject);

    QPushButton* const cmdHelp =
        AddButton(this, QStringLiteral("cmdHelp"), QStringLiteral("Help"), 3720, 1200);
    connect(cmdHelp, &QPushButton::clicked, this, &frmNew::ShowHelp);
}

void frmNew::cmdOK_Click() {
    StartNewGame(game(), ToStdString(cboDifficulty_->currentText()));
    emit gameChanged();
}

} // namespace cellora
