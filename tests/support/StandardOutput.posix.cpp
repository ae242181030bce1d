#include "support/StandardOutput.h"

#include <fcntl.h>
#include <unistd.h>

int RedirectStandardOutput(const std::filesystem::path& file) {
  const int original = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
  const int redirected = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666);
  dup2(redirected, STDOUT_FILENO);
  close(redirected);
  return original;
}

void RestoreStandardOutput(int original) {
  dup2(original, STDOUT_FILENO);
  close(original);
}
