#pragma once

#include "ui/dialogs/form.h"

class QLineEdit;

namespace cellora {

/// "Congratulations!": shown when a finished game earns a place in the Top Ten, whose time the game
/// still holds. It beeps when it is made. It closes without an entry only after asking, unless a
/// name was typed and then cancelled; an entry that cannot be written leaves it open.
class frmEnterName final : public Form {
    Q_OBJECT

public:
    frmEnterName(Game& game, QWidget* parent);

    void done(int intResult) override;

private:
    void ShowMedal();
    void MakeLabels();
    void MakeNameBox();
    void MakeButtons();

    /// The question before the window closes without a name.
    bool WantsToEnterName();

    void cmdOK_Click();

    QLineEdit* txtName_ = nullptr;
};

} // namespace cellora
