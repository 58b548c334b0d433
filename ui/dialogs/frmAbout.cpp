#include "ui/dialogs/frmAbout.h"

#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/desktop.h"
#include "ui/desktop/look.h"
#include "ui/desktop/modCommon_Internet.h"
#include "ui/desktop/system_info.h"
#include "ui/desktop/version_info.h"
#include "ui/dialogs/link_label.h"
#include "ui/dialogs/picture_box.h"

namespace cellora {

namespace {

constexpr int intRingRoom = 3; ///< between the mark of the keyboard round the link and its text

/// Grey as the window's other quiet texts, dark enough to read.
void MakeGrey(QLabel* label) {
    label->setForegroundRole(QPalette::Shadow);
}

} // namespace

frmAbout::frmAbout(Game& game, QWidget* parent) : Form(game, {}, {5970, 4890}, parent) {
    setObjectName(QStringLiteral("frmAbout"));
    MakePictures();
    MakeVersion();
    MakeComments();
    MakeLink();
    MakeButtons();
    LoadAboutInfo();
}

void frmAbout::MakePictures() {
    struct PictureRow {
        const char* strName;
        const char* strPicture;
        PictureBox::Frame frame;
        QRect rectInTwips;
    };
    // Of the frame round the larger one only the lower line lies in the window.
    static constexpr PictureRow aPictures[] = {
        {"picIcon", "about", PictureBox::Frame::Line, {-30, -30, 6030, 2430}},
        {"Picture1", "about_icon", PictureBox::Frame::None, {270, 2430, 390, 390}},
    };
    for (const PictureRow& row : aPictures) {
        const QRect& rect = row.rectInTwips;
        auto* const picture = new PictureBox(QLatin1String(row.strPicture), row.frame, this);
        picture->setObjectName(QLatin1String(row.strName));
        Place(picture, rect.x(), rect.y(), rect.width(), rect.height());
    }
}

void frmAbout::MakeVersion() {
    lblVersion_ = AddLabel(this, QStringLiteral("lblVersion"), {}, 840, 2520, 1560);
    MakeGrey(lblVersion_);
    lblCopyright_ = AddLabel(this, QStringLiteral("lblCopyright"), {}, 2520, 2520, 3330);
    MakeGrey(lblCopyright_);
}

void frmAbout::MakeComments() {
    fraComments_ = new QGroupBox(this);
    fraComments_->setObjectName(QStringLiteral("fraComments"));
    Place(fraComments_, 120, 3120, 5730, 1095);
    txtComments_ = new QPlainTextEdit(fraComments_);
    txtComments_->setObjectName(QStringLiteral("txtComments"));
    txtComments_->setAccessibleName(QStringLiteral("Information"));
    txtComments_->setReadOnly(true);
    // With a cursor, which shows where the keyboard is.
    txtComments_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtComments_->setTabChangesFocus(true);
    txtComments_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Place(txtComments_, 105, 330, 5520, 660);
}

void frmAbout::MakeLink() {
    QLabel* const lblBrought = AddLabel(this, QStringLiteral("Label1"),
                                        QStringLiteral("Brought to you by -"), 240, 4320, 2880);
    lblBrought->setContentsMargins(intRingRoom, 0, intRingRoom, 0);
    lblCompany_ = new LinkLabel(this);
    lblCompany_->setObjectName(QStringLiteral("lblCompany"));
    lblCompany_->setContentsMargins(intRingRoom, 0, intRingRoom, 0);
    lblCompany_->setToolTip(QStringLiteral("Internet connection required..."));
    Place(lblCompany_, 240, 4560, 2880, 255);
    connect(lblCompany_, &LinkLabel::clicked, this,
            [] { OpenURL(QLatin1String(strCompanyName), intShowNormal); });
}

void frmAbout::MakeButtons() {
    QPushButton* const cmdOK =
        AddButton(this, QStringLiteral("cmdOK"), QStringLiteral("OK"), 3240, 4440, 1260, 345);
    cmdOK->setAutoDefault(true);
    cmdOK->setDefault(true);
    cmdOK->setFocus();
    connect(cmdOK, &QPushButton::clicked, this, &frmAbout::accept);

    QPushButton* const cmdSysInfo =
        AddButton(this, QStringLiteral("cmdSysInfo"), QStringLiteral("&System Info..."), 4560, 4440,
                  1245, 345);
    cmdSysInfo->setAutoDefault(true);
    connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::ShowSystemInfo);
}

void frmAbout::ShowSystemInfo() {
    if (!StartSystemInfo())
        desktop().ShowMessageBox({.strTitle = ToStdString(GetProductName()),
                                  .strText = "System Information Is Unavailable At This Time",
                                  .icon = MessageIcon::None,
                                  .buttons = MessageButtons::Ok});
}

void frmAbout::LoadAboutInfo() {
    setWindowTitle(QStringLiteral("About ") + GetProductName());
    lblVersion_->setText(QStringLiteral("Version ") + GetVersionText());
    txtComments_->setPlainText(QLatin1String(strComments));
    lblCompany_->setText(QLatin1String(strCompanyName));
    // The blank beside the text is no link.
    lblCompany_->resize(lblCompany_->sizeHint().width(), lblCompany_->height());
    fraComments_->setTitle(QStringLiteral("Information"));
    lblCopyright_->setText(QLatin1String(strLegalNotice));
}

} // namespace cellora
