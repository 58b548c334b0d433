#include "ui/dialogs/frmEnterName.h"

#include <algorithm>
#include <string>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QValidator>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/clock.h"
#include "rules/completion.h"
#include "rules/hall_of_fame.h"
#include "ui/desktop/look.h"
#include "ui/dialogs/picture_box.h"

namespace cellora {

namespace {

constexpr std::size_t intMaxNameLength = 40;
constexpr double dblTextLeft = 2040;
constexpr double dblTextWidth = 5220;

/// The file keeps a name between double quotes on one line.
bool IsRefused(char32_t character) {
    const QChar::Category category = QChar::category(character);
    return character == U'"' || category == QChar::Other_Control ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

std::u32string Clean(const QString& strText) {
    std::u32string strClean = strText.toStdU32String();
    std::erase_if(strClean, IsRefused);
    return strClean;
}

/// Drops what a name cannot hold, as it is typed or pasted. Of an insertion that is too long the
/// end is dropped, which lies in front of the cursor; a length limit of the box itself would count
/// dropped characters and could cut a character in two.
class NameValidator final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& strInput, int& intPosition) const override {
        std::u32string strBefore = Clean(strInput.left(intPosition));
        const std::u32string strAfter = Clean(strInput.mid(intPosition));
        const std::size_t intRoom = intMaxNameLength - std::min(intMaxNameLength, strAfter.size());
        strBefore.resize(std::min(strBefore.size(), intRoom));
        const QString strKept = QString::fromStdU32String(strBefore);
        intPosition = static_cast<int>(strKept.size());
        strInput = strKept + QString::fromStdU32String(strAfter);
        return Acceptable;
    }
};

} // namespace

frmEnterName::frmEnterName(Game& game, QWidget* parent)
    : Form(game, QStringLiteral("Congratulations!"), {7500, 2640}, parent) {
    ShowMedal();
    MakeLabels();
    MakeNameBox();
    MakeButtons();
    desktop().Beep();
}

void frmEnterName::done(int intResult) {
    if (txtName_->text().isEmpty() && WantsToEnterName())
        txtName_->setFocus();
    else
        Form::done(intResult);
}

void frmEnterName::ShowMedal() {
    const int intRank = GetRank(game());
    if (intRank > LevelEntries::size())
        return; // another copy of the program took the last place meanwhile
    const QString strRank = QString::number(intRank);
    auto* const picMedal =
        new PictureBox(QStringLiteral("medal_%1").arg(strRank), PictureBox::Frame::None, this);
    picMedal->setObjectName(QStringLiteral("picMedal"));
    picMedal->setAccessibleName(QStringLiteral("Medal for rank %1").arg(strRank));
    Place(picMedal, 330, 360, 1440, 1440);
}

void frmEnterName::MakeLabels() {
    QLabel* const lblCongratulations =
        AddLabel(this, QStringLiteral("lblCongratulations"),
                 QStringLiteral("You have successfully completed a %1 game of the 'Cellora'.")
                     .arg(ToQString(game().statistics.lblLevel)),
                 dblTextLeft, 240, dblTextWidth, 420);
    lblCongratulations->setWordWrap(true);

    QLabel* const lblTime =
        AddLabel(this, QStringLiteral("lblTime"),
                 QStringLiteral("Your time was %1.").arg(ToQString(GetTimeText(game()))),
                 dblTextLeft, 675, dblTextWidth, 300);
    lblTime->setFont(MakeFont(9.75, Weight::Bold));
}

void frmEnterName::MakeNameBox() {
    QLabel* const lblName = AddLabel(this, QStringLiteral("lblName"),
                                     QStringLiteral("Enter your name into the 'Hall of Fame'"),
                                     dblTextLeft, 1095, dblTextWidth);
    txtName_ = new QLineEdit(this);
    txtName_->setObjectName(QStringLiteral("txtName"));
    txtName_->setAccessibleName(lblName->text());
    txtName_->setValidator(new NameValidator(txtName_));
    Place(txtName_, dblTextLeft, 1350, dblTextWidth, 360);
    lblName->setBuddy(txtName_);
}

void frmEnterName::MakeButtons() {
    QPushButton* const cmdOK =
        AddButton(this, QStringLiteral("cmdOK"), QStringLiteral("OK"), 3375, 2025);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmEnterName::cmdOK_Click);

    QPushButton* const cmdCancel =
        AddButton(this, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), 4710, 2025);
    connect(cmdCancel, &QPushButton::clicked, this, &frmEnterName::reject);

    QPushButton* const cmdHelp =
        AddButton(this, QStringLiteral("cmdHelp"), QStringLiteral("Help"), 6045, 2025);
    connect(cmdHelp, &QPushButton::clicked, this, &frmEnterName::ShowHelp);
}

bool frmEnterName::WantsToEnterName() {
    return desktop().Confirm(
        "Enter your name?",
        std::string("You have not entered your name. If you don't enter a name then your "
                    "achievement will not be included in the 'Hall of Fame'.")
            .append(strParagraphBreak)
            .append("Do you wish to enter your name?"));
}

void frmEnterName::cmdOK_Click() {
    if (const QString strName = txtName_->text(); !strName.isEmpty()) {
        NoteName(game(), ToStdString(strName));
        emit gameChanged(); // which keeps it on disk
        if (const auto reason = SaveHallOfFameEntry(game(), ToStdString(strName))) {
            ShowHallOfFameError(game(), *reason);
            return;
        }
    }
    accept();
}

} // namespace cellora
