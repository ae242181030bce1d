#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "terminal/Terminal.h"

namespace zrkhost {

void HoldStandardError() {
  if (fcntl(STDERR_FILENO, F_GETFD) >= 0) return;
  const int nowhere = open("/dev/null", O_WRONLY);
  if (nowhere < 0 || nowhere == STDERR_FILENO) return;
  dup2(nowhere, STDERR_FILENO);
  close(nowhere);
}

bool IsTerminal(int descriptor) {
  return isatty(descriptor) == 1;
}

int TerminalWidth(int descriptor) {
  winsize size{};
  return ioctl(descriptor, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

bool CanRewriteLines(int descriptor) {
  const char* kind = std::getenv("TERM");
  return IsTerminal(descriptor) && !(kind && std::string_view(kind) == "dumb");
}

bool TakesColours(int descriptor) {
  return CanRewriteLines(descriptor) && !std::getenv("NO_COLOR");
}

}  // namespace zrkhost
