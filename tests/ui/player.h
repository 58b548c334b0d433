#pragma once

#include <QString>

namespace cellora {

/// Plays a script on the running program: its commands, each with what came of it now. A line
/// "> VERB WORDS" is something that a player or the world does; below it comes what that changed in
/// the windows, after ">>" nothing comes. What is done while a modal window is open is done in it.
QString PlayScript(const QString& strScript);

} // namespace cellora
