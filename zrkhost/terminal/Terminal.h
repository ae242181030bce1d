#pragma once

// Whether a file descriptor leads to a person's terminal, and what that terminal can do.
namespace zrkhost {

bool IsTerminal(int descriptor);
// Columns; 0 when it is not known or not a terminal.
int TerminalWidth(int descriptor);
// Whether colours may be written to it: it is a terminal that shows them, and the environment holds no
// NO_COLOR.
bool TakesColours(int descriptor);

}  // namespace zrkhost
