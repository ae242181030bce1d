#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "terminal/Terminal.h"

namespace zrkhost {

bool IsTerminal(int descriptor) {
  return isatty(descriptor) == 1;
}

int TerminalWidth(int descriptor) {
  winsize size{};
  return ioctl(descriptor, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

bool TakesColours(int descriptor) {
  const char* kind = std::getenv("TERM");
  return IsTerminal(descriptor) && !std::getenv("NO_COLOR") && !(kind && std::string_view(kind) == "dumb");
}

}  // namespace zrkhost
