#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/modCellora.h"
#include "store/saved_game.h"

namespace cellora {

/// What a recovery copy holds, and its form: a saved game and what belongs to it beside
/// (docs/file-formats.md).
struct RecoveryCopy {
    SavedGame savedGame;
    std::string strGameFile;
    WaitingScore score;

    bool operator==(const RecoveryCopy&) const = default;
};

/// A path with a line break in it is left out.
std::string FormatRecoveryCopy(const RecoveryCopy& copy);

/// Nothing unless the bytes are a whole copy; a saved game is none.
std::optional<RecoveryCopy> ParseRecoveryCopy(std::string_view bytes);

} // namespace cellora
