#include "Player.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>

#include "Escapes.h"
#include "Platform.h"

namespace {

namespace fs = std::filesystem;

void Write(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fflush(stream);
}

void Repeat(std::uint64_t count, const std::string& text) {
  constexpr std::size_t pieceSize = 1 << 20;
  const std::uint64_t textsInPiece =
      std::max<std::uint64_t>(1, pieceSize / std::max<std::size_t>(1, text.size()));
  std::string piece;
  for (std::uint64_t i = 0; i < std::min(textsInPiece, count); ++i) piece += text;
  for (; count >= textsInPiece; count -= textsInPiece) {
    if (std::fwrite(piece.data(), 1, piece.size(), stdout) != piece.size()) return;
  }
  Write(stdout, std::string_view(piece).substr(0, count * text.size()));
}

void CopyToOutput(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) std::abort();
  std::array<char, 65536> buffer{};
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), file)) {
    if (std::fwrite(buffer.data(), 1, size, stdout) != size) break;
  }
  std::fclose(file);
  std::fflush(stdout);
}

void Store(const std::string& path, const std::string& text) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (!file || std::fwrite(text.data(), 1, text.size(), file) != text.size()) std::abort();
  std::fclose(file);
}

std::string ReadAnswer() {
  std::string answer;
  for (int byte = std::getchar(); byte != EOF; byte = std::getchar()) {
    answer += static_cast<char>(byte);
    if (byte == '\0' || byte == '\n') break;
  }
  return answer;
}

std::string ReadAllInput() {
  std::string input;
  for (int byte = std::getchar(); byte != EOF; byte = std::getchar()) input += static_cast<char>(byte);
  return input;
}

void SetWritable(const std::string& path, bool writable) {
  constexpr fs::perms everybody = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if (writable) {
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
  } else {
    fs::permissions(path, everybody, fs::perm_options::remove);
  }
}

// The status to end with, when the action ends the client.
std::optional<int> Perform(const Action& action, RunLog& log) {
  const std::string& verb = action.Verb;
  const std::size_t blank = action.Text.find(' ');
  const std::string first = Unescape(action.Text.substr(0, blank));
  const std::string rest = blank == std::string::npos ? "" : Unescape(action.Text.substr(blank + 1));

  if (verb == "out") {
    Write(stdout, Unescape(action.Text));
  } else if (verb == "err") {
    Write(stderr, Unescape(action.Text));
  } else if (verb == "repeat") {
    Repeat(std::strtoull(first.c_str(), nullptr, 10), rest);
  } else if (verb == "file") {
    CopyToOutput(first);
  } else if (verb == "read") {
    log.Read(ReadAnswer());
  } else if (verb == "readall") {
    log.Read(ReadAllInput());
  } else if (verb == "writable" || verb == "readonly") {
    SetWritable(first, verb == "writable");
  } else if (verb == "store") {
    Store(first, rest);
  } else if (verb == "remove") {
    fs::remove(first);
  } else if (verb == "closeout") {
    CloseStandardStream(1);
    CloseStandardStream(2);
  } else if (verb == "closein") {
    CloseStandardStream(0);
  } else if (verb == "hang") {
    ReadAllInput();
  } else if (verb == "hangforever") {
    std::this_thread::sleep_for(std::chrono::minutes(1));
  } else if (verb == "exit") {
    return std::atoi(first.c_str());
  } else if (verb == "console") {
    Write(stdout, ConsoleText());
  } else if (verb == "crash") {
    EndAbruptly();
  } else {
    // A misspelt script must not pass for one that does nothing.
    std::fprintf(stderr, "unknown action: %s\n", verb.c_str());
    std::abort();
  }
  return std::nullopt;
}

}  // namespace

int Play(const Rule& rule, RunLog& log) {
  for (const Action& action : rule.Actions) {
    if (const std::optional<int> status = Perform(action, log)) return *status;
  }
  return EXIT_SUCCESS;
}
