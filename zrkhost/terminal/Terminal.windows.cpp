#include "terminal/Terminal.h"

#include <io.h>
#include <windows.h>

#include <cstdlib>

namespace zrkhost {

namespace {

HANDLE HandleOf(int descriptor) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

}  // namespace

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

bool TakesColours(int descriptor) {
  constexpr DWORD kProcessSequences = 0x0004;
  DWORD mode = 0;
  if (!IsTerminal(descriptor) || std::getenv("NO_COLOR")) return false;
  return GetConsoleMode(HandleOf(descriptor), &mode) &&
         SetConsoleMode(HandleOf(descriptor), mode | kProcessSequences);
}

}  // namespace zrkhost
