#pragma once

#include "ui/dialogs/form.h"

namespace cellora {

class LevelBox;

/// "New Game": the player picks a level, "Level 1" each time. OK puts a new puzzle on the board,
/// which closes the window. However it closes, the pointer is the hourglass then; the New command
/// takes it back.
class frmNew final : public Form {
    Q_OBJECT

public:
    frmNew(Game& game, QWidget* parent);

    void done(int intResult) override;

private:
    void MakeLabels();
    void MakeLevelBox();
    void MakeButtons();

    void cmdOK_Click();

    LevelBox* cboDifficulty_ = nullptr;
};

} // namespace cellora
