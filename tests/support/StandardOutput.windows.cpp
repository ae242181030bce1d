#include "support/StandardOutput.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

int RedirectStandardOutput(const std::filesystem::path& file) {
  const int original = _dup(1);
  const int redirected =
      _wopen(file.c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC | _O_APPEND, _S_IREAD | _S_IWRITE);
  _dup2(redirected, 1);
  _close(redirected);
  return original;
}

void RestoreStandardOutput(int original) {
  _dup2(original, 1);
  _close(original);
}
