#include "ui/dialogs/frmPause.h"

#include <QLabel>
#include <QPushButton>

#include "ui/desktop/look.h"

namespace cellora {

namespace {

constexpr int intWidth = 4680;
constexpr int intButtonWidth = 1215;

} // namespace

// A blank, because the toolkit shows the program's name in place of an empty title.
frmPause::frmPause(Game& game, QWidget* parent)
    : Form(game, QStringLiteral(" "), {intWidth, 1950}, parent) {
    setAccessibleName(QStringLiteral("Game paused"));

    QLabel* const lblPaused =
        AddLabel(this, QStringLiteral("lblPaused"), QStringLiteral("GAME PAUSED"), 240, 285,
                 intWidth - 480, 375, Qt::AlignHCenter);
    lblPaused->setFont(MakeFont(14, Weight::Bold));

    AddLabel(this, QStringLiteral("lblResume"),
             QStringLiteral("Click 'Continue' to resume playing the game..."), 240, 780,
             intWidth - 480, 255, Qt::AlignHCenter);

    QPushButton* const cmdContinue =
        AddButton(this, QStringLiteral("cmdContinue"), QStringLiteral("Continue"),
                  (intWidth - intButtonWidth) / 2.0, 1290, intButtonWidth);
    cmdContinue->setDefault(true);
    connect(cmdContinue, &QPushButton::clicked, this, &frmPause::accept);
}

} // namespace cellora
