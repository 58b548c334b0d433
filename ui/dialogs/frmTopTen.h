#pragma once

#include "ui/dialogs/form.h"

class QTreeWidget;

namespace cellora {

class LevelBox;
struct HallOfFameEntry;

/// "Top Ten": the best times of one level. It opens on the highest level that has any.
class frmTopTen final : public Form {
    Q_OBJECT

public:
    frmTopTen(Game& game, QWidget* parent);

private:
    QWidget* MakePage();
    QWidget* MakeLevelBox(QWidget* page);
    void MakeList(QWidget* page);
    void MakeColumns();
    void MakeButtons();
    void ShowStartingLevel();

    /// Shows the entries up to the first empty one. Errors are ignored.
    void ShowTopTenLevel(int intLevel);
    void AddRow(int intRank, const HallOfFameEntry& entry);
    void ClearTopTenList();

    void cboLevel_Click();
    void cmdReset_Click();

    LevelBox* cboLevel_ = nullptr;
    QTreeWidget* lvwTopTen_ = nullptr;
};

} // namespace cellora
