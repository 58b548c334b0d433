#pragma once

#include <functional>
#include <utility>

#include <QAccessible>
#include <QString>

#include "core/modCommon_Constants.h"
#include "core/numbered.h"

namespace cellora {

class BoardView;
struct GridView;

/// What a cell 1 to 81 is called by assistive technology: where it is, what the player sees in it,
/// whether it is marked wrong, and its notes; of a paused board only where it is.
QString GetCellName(const GridView& grid, int intCell);

/// Makes every BoardView a table of cells; called once before the first window.
void InstallBoardAccessibility();

/// Tells assistive technology about cells that were renamed and a cursor that moved since the last
/// call. It remembers the names it told; while the board is hidden it does nothing.
class BoardAnnouncer final {
public:
    using Teller = std::function<void(QAccessibleEvent*)>;

    /// The view outlives the announcer.
    explicit BoardAnnouncer(BoardView& view, Teller fnTell = QAccessible::updateAccessibility)
        : view_(view), fnTell_(std::move(fnTell)) {}

    void Announce();

private:
    void AnnounceNames();
    void AnnounceCursor();

    BoardView& view_;
    Teller fnTell_;
    Numbered<QString, intCellCount> strNames_;
    int intCursorCell_ = 0;
};

} // namespace cellora
