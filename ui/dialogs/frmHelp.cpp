#include "ui/dialogs/frmHelp.h"

#include <cmath>

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include "core/modCellora.h"
#include "rules/start_up.h"
#include "store/settings.h"
#include "ui/desktop/look.h"
#include "ui/desktop/version_info.h"
#include "ui/dialogs/help_pages.h"
#include "ui/dialogs/picture_box.h"

namespace cellora {

frmHelp::frmHelp(Game& game, QWidget* parent) : Form(game, GetProductName(), {8100, 5055}, parent) {
    setObjectName(QStringLiteral("frmHelp"));
    MakePicture();
    QLabel* const lblWelcome = AddLabel(this, QStringLiteral("Label1"),
                                        QStringLiteral("Welcome..."), 2160, 150, 5655, 495);
    lblWelcome->setFont(MakeFont(18, Weight::Bold));
    MakeTabs();

    QPushButton* const cmdOK =
        AddButton(this, QStringLiteral("cmdOK"), QStringLiteral("OK"), 120, 4200, 1815, 495);
    cmdOK->setDefault(true);
    cmdOK->setFocus();
    connect(cmdOK, &QPushButton::clicked, this, &frmHelp::accept);

    chkStartup_ = new QCheckBox(QStringLiteral("Show at startup"), this);
    chkStartup_->setObjectName(QStringLiteral("chkStartup"));
    // The wider gap of the style would leave the caption too little room.
    chkStartup_->setStyleSheet(QStringLiteral("spacing: 2px"));
    Place(chkStartup_, 6600, 4765, 1455, 255);
    const Settings stored = LoadSettings(game.files, GetSettingsFile(game));
    const Settings& known = stored.strUnread.empty() ? stored : game.settings;
    chkStartup_->setChecked(std::nearbyint(known.dblStartup) == 1);
}

void frmHelp::ShowTab(int intIndex) {
    tab_->setCurrentIndex(intIndex);
}

void frmHelp::done(int intResult) {
    game().settings.dblStartup = chkStartup_->isChecked() ? 1 : 0;
    SaveSettings(game().files, game().settings, SettingsGroup::Startup, GetSettingsFile(game()));
    Form::done(intResult);
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
    QScrollBar* const bar = static_cast<QScrollArea*>(tab_->currentWidget())->verticalScrollBar();
    const bool blnShift = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Tab: // without Ctrl it has moved the keyboard
    case Qt::Key_Backtab:
        TurnPages(blnShift ? -1 : 1);
        break;
    case Qt::Key_PageDown:
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    case Qt::Key_PageUp:
        bar->triggerAction(QAbstractSlider::SliderPageStepSub);
        break;
    default:
        Form::keyPressEvent(event);
    }
}

void frmHelp::MakePicture() {
    auto* const picture =
        new PictureBox(QStringLiteral("instructions"), PictureBox::Frame::Line, this);
    picture->setObjectName(QStringLiteral("Picture1"));
    Place(picture, 120, 240, 1785, 3825);
}

void frmHelp::MakeTabs() {
    tab_ = new QTabWidget(this);
    tab_->setObjectName(QStringLiteral("tab"));
    tab_->setAccessibleName(QStringLiteral("Instructions"));
    Place(tab_, 2160, 720, 5830, 3975);
    tab_->addTab(MakeInstructionsPage(game()), QStringLiteral("Instructions"));
    tab_->addTab(MakeControlsPage(game()), QStringLiteral("Controls"));
    tab_->addTab(MakeMenusPage(game()), QStringLiteral("Menus"));
    tab_->addTab(MakeHistoryPage(), QStringLiteral("History"));
}

void frmHelp::TurnPages(int intPages) {
    ShowTab((tab_->currentIndex() + tab_->count() + intPages) % tab_->count());
}

} // namespace cellora
