#include "terminal/Terminal.h"

#include <io.h>
#include <windows.h>

#include <cstdlib>
#include <string_view>

namespace zrkhost {

namespace {

HANDLE HandleOf(int descriptor) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

}  // namespace

// The C runtime gives the place to nothing else.
void HoldStandardError() {}

bool IsTerminal(int descriptor) {
  DWORD mode = 0;
  // _isatty also takes other devices, such as NUL, for a terminal.
  return descriptor >= 0 && _isatty(descriptor) && GetConsoleMode(HandleOf(descriptor), &mode);
}

int TerminalWidth(int descriptor) {
  CONSOLE_SCREEN_BUFFER_INFO screen{};
  if (!IsTerminal(descriptor) || !GetConsoleScreenBufferInfo(HandleOf(descriptor), &screen)) return 0;
  return screen.srWindow.Right - screen.srWindow.Left + 1;
}

bool CanRewriteLines(int descriptor) {
  const char* kind = std::getenv("TERM");
  return IsTerminal(descriptor) && !(kind && std::string_view(kind) == "dumb");
}

bool TakesColours(int descriptor) {
  constexpr DWORD kProcessSequences = 0x0004;
  DWORD mode = 0;
  if (!CanRewriteLines(descriptor) || std::getenv("NO_COLOR")) return false;
  return GetConsoleMode(HandleOf(descriptor), &mode) &&
         SetConsoleMode(HandleOf(descriptor), mode | kProcessSequences);
}

}  // namespace zrkhost
