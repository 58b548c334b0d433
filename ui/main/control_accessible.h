#pragma once

namespace cellora {

/// Makes the program's own controls known for what they are: a LinkLabel is a link that can be
/// pressed, a StatisticsPane and a NumberSelector are groups, the pictures of the side windows are
/// graphics. Called once before the main window is made.
void InstallControlAccessibility();

} // namespace cellora
