#pragma once

#include <cstdint>
#include <functional>

namespace cellora {

class RunningProgram;

/// Plays whole games through the main window as chance has it, one with each call, and checks after
/// every move that the window shows what the game says. A difference fails the test and ends the
/// game. Returns how many moves were made in all.
std::function<int()> MakeRandomPlayer(RunningProgram& run, std::uint64_t lngSeed);

} // namespace cellora
