#pragma once

#include <cstdint>
#include <functional>

namespace cellora {

class RunningProgram;

struct Played {
    int intMoves = 0;
    int intFileDialogs = 0;
};

/// Plays whole games through the main window as chance has it, one with each call, and then leaves
/// the program and takes it apart if told so. A model of the rules plays beside it: after every
/// move the window, and with every write the file, must be what the model tells. A difference fails
/// the test and ends the game. The program is started where it does not run, and left, killed and
/// started again on the way. Returns what was done in all.
std::function<Played(bool blnLeave)> MakeRandomPlayer(RunningProgram& run, std::uint64_t lngSeed);

} // namespace cellora
