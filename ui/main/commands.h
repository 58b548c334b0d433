#pragma once

#include <vector>

class QAction;
class QMenu;
class QPushButton;
class QToolBar;
class QWidget;

namespace cellora {

class frmMain;
struct Command;
struct View;

/// The menu bar and the toolbar of the main window. Both are made from one table of commands.
class CommandBars final {
public:
    /// Makes the menu bar of the window, which outlives the bars and runs their commands.
    explicit CommandBars(frmMain& window);

    /// Makes the toolbar, which belongs to `parent`. Called once, before the first `Mirror`.
    QToolBar* MakeToolbar(QWidget* parent);

    /// What is enabled, ticked and shown.
    void Mirror(const View& view);

    /// The toolbar's buttons are told apart by the numbers of their pictures: 1 saves, 2 prints, 3
    /// opens, 4 starts a new game, 5 opens the Options, 7 pauses; any other number does nothing.
    void tbrMain_ButtonClick(int intPicture);

private:
    /// A menu entry or a button of the toolbar.
    struct Entry {
        QAction* action;
        const Command* command;
    };

    void AddMenuEntry(QMenu& menu, const Command& command);
    void AddButton(const Command& command);
    void MakeFinishButton();
    /// On the toolbar, or while that is hidden in the corner of the menu bar.
    void PlaceFinishButton(const View& view);

    frmMain& window_;
    QToolBar* tbrMain_ = nullptr;
    QPushButton* cmdFinished_ = nullptr;
    std::vector<Entry> menuEntries_;
    std::vector<Entry> buttons_;
};

} // namespace cellora
