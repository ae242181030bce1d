#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>

#include "Platform.h"

void SetBinaryStandardStreams() {}

std::string CurrentFolder() {
  std::array<char, 4096> buffer{};
  if (!getcwd(buffer.data(), buffer.size())) return {};
  std::string folder = buffer.data();
  std::replace(folder.begin(), folder.end(), '/', '\\');
  return folder;
}

int ProcessId() {
  return getpid();
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (file < 0 || write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
  close(file);
}

bool CreateNewFile(const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) return false;
  close(file);
  return true;
}

void CloseStandardStream(int number) {
  close(number);
}

std::string ConsoleText() {
  return "no console";
}

void EndAbruptly() {
  raise(SIGKILL);
  std::abort();
}
