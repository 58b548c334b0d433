#include "rules/zoom.h"

#include <algorithm>

#include "core/modCellora.h"
#include "core/zoom.h"

namespace cellora {

namespace {

/// What is shown already stays the player's choice, be it the larger zoom that the screen does not
/// hold.
void TakeZoom(Game& game, std::int16_t intZoom, std::int16_t intLargest) {
    if (game.blnGameActive() && intZoom != GetShownZoom(game, intLargest))
        game.settings.intZoom = intZoom;
}

} // namespace

std::int16_t GetShownZoom(const Game& game, std::int16_t intLargest) {
    return std::min(game.settings.intZoom, intLargest);
}

void ZoomIn(Game& game, std::int16_t intLargest) {
    const auto* const next = std::ranges::upper_bound(aZoomSteps, GetShownZoom(game, intLargest));
    if (next != aZoomSteps.end())
        TakeZoom(game, std::min(*next, intLargest), intLargest);
}

void ZoomOut(Game& game, std::int16_t intLargest) {
    const auto* const shown = std::ranges::lower_bound(aZoomSteps, GetShownZoom(game, intLargest));
    if (shown != aZoomSteps.begin())
        TakeZoom(game, *(shown - 1), intLargest);
}

void ZoomReset(Game& game, std::int16_t /*intLargest*/) {
    if (game.blnGameActive())
        game.settings.intZoom = intPlainZoom;
}

void ZoomTo(Game& game, int intPercent, std::int16_t intLargest) {
    TakeZoom(game, std::min(GetNearestZoom(intPercent), intLargest), intLargest);
}

} // namespace cellora
