#pragma once

#include <map>
#include <sstream>
#include <string>
#include <tuple>

#include <QAccessible>
#include <QImage>

#include "tests/support/running_program.h"
#include "ui/board_accessible.h"

namespace cellora {

/// Compares what the main window shows with what the game says, and the game with its own cells.
class WindowCheck final {
public:
    /// The program has started.
    explicit WindowCheck(RunningProgram& run);

    /// The differences, one a line; empty where there are none.
    std::string FindDifferences();

    /// The same for the pixels on the screen, which is slow: what has been painted is what a fresh
    /// painting would show, and the board is what a fresh board would be.
    std::string FindPaintedDifferences();

    int GetCheckCount() const { return intChecks_; }

private:
    template <typename Shown, typename Said>
    void Compare(const std::string& strWhat, const Shown& shown, const Said& said);

    void Hear(const QAccessibleEvent& event);
    void CheckCell(int i);
    void CheckCellName(int i);
    void CheckBoard();
    void CheckButton(int n);
    void CheckStatistics();
    void CheckMenus();
    void CheckToolbar();
    void CheckPanes();
    void CheckCounts();
    void CheckShading();

    /// Number, frame, shade and focus: the same make the same picture, others another one.
    using ButtonState = std::tuple<int, bool, bool, bool>;

    RunningProgram& run_;
    BoardAnnouncer announcer_;
    Numbered<std::string, intCellCount> toldNames_; ///< to assistive technology
    std::map<ButtonState, QImage> pictures_;
    std::ostringstream differences_;
    int intChecks_ = 0;
};

} // namespace cellora
