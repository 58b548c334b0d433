#pragma once

#include "core/modCommon_Constants.h"

/// How well colours can be told apart, as the eye sees them.
namespace cellora {

/// From 1 for two equally bright colours to 21 for black and white; which of them lies behind makes
/// no difference. A text reads well from 4.5 on, a line or mark is seen from 3 on.
double GetContrast(Color lngColor, Color lngBehind);

/// Black or white: the one that reads on that colour, at 4.5 or more on any.
Color ChooseInk(Color lngBehind);

/// That colour, or as little darker or lighter as makes a line or mark of it seen on what lies
/// behind: their contrast is 3 at least.
Color MakeSeen(Color lngColor, Color lngBehind);

/// What lies behind with a tint of that colour, at most a third of it, and never so much that a
/// text which reads on the one does not read on the other.
Color Tint(Color lngColor, Color lngBehind, Color lngText);

/// The inactive caption text's colour, or as much of it as can hardly be told from what lies
/// behind, not even in large digits: their contrast is 1.06 at most, and no part of them is more
/// than 8 of 255 apart.
Color Conceal(Color lngBehind);

} // namespace cellora
