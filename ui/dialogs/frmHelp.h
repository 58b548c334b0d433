#pragma once

#include "ui/dialogs/form.h"

class QCheckBox;
class QTabWidget;

namespace cellora {

/// The Instructions window: four pages of help, and whether it opens at every start.
class frmHelp final : public Form {
    Q_OBJECT

public:
    frmHelp(Game& game, QWidget* parent);

    /// Turns to a page: 0 Instructions, 1 Controls, 2 Menus, 3 History. It opens on page 0.
    void ShowTab(int intIndex);

    /// Every way of closing ends here, and the start-up choice is written.
    void done(int intResult) override;

protected:
    /// Wherever the keyboard is, Ctrl+Tab and Ctrl+Shift+Tab turn the pages, and page keys scroll
    /// one that is longer than its place.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakePicture();
    void MakeTabs();

    /// Turns that many pages forward, or back by one; behind the last page comes the first.
    void TurnPages(int intPages);

    QTabWidget* tab_ = nullptr;
    QCheckBox* chkStartup_ = nullptr;
};

} // namespace cellora
