#pragma once

#include <QSize>
#include <QStringList>

/// The machine the windows run on, as far as the tests stand in for it. Its clock stands still
/// unless it is told to go on, its sounds and the programs it starts are only noted.
namespace cellora::machine {

/// A new test begins, at ten in the morning.
void Begin();

inline QStringList heard; ///< since somebody listened last, a line each

/// Lets time pass, with all that the timers do in it.
void Pass(int intMilliseconds);

/// Handles all that is there to be handled; on a real screen some of it comes from outside.
void Settle();

bool IsOffscreen();

/// Whether every pixel is where it was when the scripts were written.
bool IsExact();

inline QSize sizeScreen; ///< what the screen leaves to windows; empty: all that it has

inline bool blnSessionAsks = true; ///< the end of the session leaves time to ask
inline bool blnPrinterInstalled = false;
inline bool blnPrinterBroken = false;
inline bool blnServiceRefuses = false; ///< the print service takes no document

} // namespace cellora::machine
