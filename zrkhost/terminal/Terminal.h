#pragma once

// Whether a file descriptor leads to a person's terminal, and what that terminal can do.
namespace zrkhost {

// For a program that was started without a standard error: what it opens later must not take that place and
// get what is written there.
void HoldStandardError();

inline constexpr int kStandardInput = 0;
inline constexpr int kStandardError = 2;

bool IsTerminal(int descriptor);
// Columns; 0 when it is not known or not a terminal.
int TerminalWidth(int descriptor);
// Whether a line on it can be written over: it is a terminal, and TERM does not say that it is dumb.
bool CanRewriteLines(int descriptor);
// Whether colours may be written to it: it is a terminal that shows them, and the environment holds no
// NO_COLOR.
bool TakesColours(int descriptor);

}  // namespace zrkhost
