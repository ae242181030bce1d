#include "console/PseudoTerminal.h"

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

#include "base/Encoding.h"
#include "terminal/DisplayText.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// A screen as high as it needs to be. A character of two columns leaves an empty cell behind it.
class Cells {
public:
  explicit Cells(std::size_t columns) : columns_(columns) {}

  void Write(std::string_view text) {
    const auto characters = zrkhost::CharactersFromUtf8(text);
    for (std::size_t i = 0; i < characters.size(); ++i) {
      if (characters[i] == 0x1B && i + 1 < characters.size() && characters[i + 1] == '[') {
        std::size_t number = 0;
        for (i += 2; i < characters.size() && (characters[i] < '@' || characters[i] > '~'); ++i) {
          number = characters[i] >= '0' && characters[i] <= '9' ? number * 10 + (characters[i] - '0') : 0;
        }
        if (i < characters.size()) Sequence(characters[i], number);
      } else {
        Character(characters[i]);
      }
    }
  }

  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (const auto& row : rows_) {
      std::string line;
      for (const auto& cell : row) line += cell;
      line.resize(line.find_last_not_of(' ') + 1);
      lines.push_back(line);
    }
    return lines;
  }

private:
  std::vector<std::string>& Row() {
    while (rows_.size() <= row_) rows_.emplace_back(columns_, " ");
    return rows_[row_];
  }

  void Character(char32_t character) {
    if (character == '\r') {
      column_ = 0;
    } else if (character == '\n') {
      ++row_;
      Row();
    } else if (character == '\b') {
      column_ -= std::min<std::size_t>(column_, 1);
    } else if (character >= ' ') {
      const auto text = zrkhost::Utf8FromCharacters({&character, 1});
      const auto width = static_cast<std::size_t>(zrkhost::DisplayWidth(text));
      if (width == 0) return;
      if (column_ + width > columns_) {
        column_ = 0;
        ++row_;
      }
      Row()[column_] = text;
      if (width == 2) Row()[column_ + 1] = "";
      column_ += width;
    }
  }

  void Sequence(char32_t kind, std::size_t number) {
    const std::size_t count = std::max<std::size_t>(number, 1);
    if (kind == 'A') row_ -= std::min(row_, count);
    if (kind == 'B') row_ += count;
    if (kind == 'C') column_ = std::min(column_ + count, columns_ - 1);
    if (kind == 'D') column_ -= std::min(column_, count);
    if (kind == 'G') column_ = count - 1;
    if (kind == 'K' || kind == 'J') {
      auto& row = Row();
      std::fill(row.begin() + static_cast<std::ptrdiff_t>(std::min(column_, columns_)), row.end(), " ");
    }
    if (kind == 'J') rows_.resize(row_ + 1);
    if (kind == 'P') {
      auto& row = Row();
      for (std::size_t i = 0; i < count && column_ < columns_; ++i) {
        row.erase(row.begin() + static_cast<std::ptrdiff_t>(column_));
        row.emplace_back(" ");
      }
    }
    if (kind == '@') {
      auto& row = Row();
      row.insert(row.begin() + static_cast<std::ptrdiff_t>(std::min(column_, columns_)), count, " ");
      row.resize(columns_);
    }
  }

  std::size_t columns_;
  std::vector<std::vector<std::string>> rows_;
  std::size_t row_ = 0;
  std::size_t column_ = 0;
};

}  // namespace

bool PseudoTerminal::Available() {
  int terminal = -1;
  int other = -1;
  if (openpty(&terminal, &other, nullptr, nullptr, nullptr) != 0) return false;
  close(terminal);
  close(other);
  return true;
}

PseudoTerminal::PseudoTerminal(const std::filesystem::path& program, std::vector<std::string> arguments,
                               unsigned short columns)
    : columns_(columns) {
  arguments.insert(arguments.begin(), program.string());
  std::vector<char*> pointers;
  for (auto& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  winsize size{.ws_row = 50, .ws_col = columns, .ws_xpixel = 0, .ws_ypixel = 0};
  process_ = forkpty(&terminal_, nullptr, nullptr, &size);
  if (process_ < 0) throw std::system_error(errno, std::generic_category(), "forkpty");
  if (process_ == 0) {
    execv(pointers[0], pointers.data());
    _exit(127);
  }
}

PseudoTerminal::~PseudoTerminal() {
  close(terminal_);
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
}

void PseudoTerminal::Type(const std::string& text) {
  if (write(terminal_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::system_error(errno, std::generic_category(), "write");
  }
}

bool PseudoTerminal::WaitFor(const std::string& text) {
  return AppearsWithin(text, std::chrono::minutes(1));
}

bool PseudoTerminal::AppearsWithin(const std::string& text, milliseconds time) {
  const auto end = steady_clock::now() + time;
  for (;;) {
    const auto found = written_.find(text, waitedTo_);
    if (found != std::string::npos) {
      waitedTo_ = found + text.size();
      return true;
    }
    const auto left = std::chrono::duration_cast<milliseconds>(end - steady_clock::now());
    if (left.count() <= 0 || !ReadMore(left)) return false;
  }
}

int PseudoTerminal::Finish() {
  while (ReadMore(std::chrono::minutes(1))) {
  }
  int status = 0;
  if (!ended_) kill(process_, SIGKILL);
  while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
  }
  process_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::vector<std::string> PseudoTerminal::Screen() const {
  Cells cells(columns_);
  cells.Write(written_);
  return cells.Lines();
}

bool PseudoTerminal::ReadMore(milliseconds time) {
  pollfd terminal{.fd = terminal_, .events = POLLIN, .revents = 0};
  const int ready = poll(&terminal, 1, static_cast<int>(time.count()));
  if (ready < 0 && errno == EINTR) return true;
  if (ready <= 0) return false;
  std::array<char, 4096> buffer{};
  const ssize_t count = read(terminal_, buffer.data(), buffer.size());
  if (count < 0 && errno == EINTR) return true;
  // Reading fails once the program and its terminal are gone.
  ended_ = count <= 0;
  if (count > 0) written_.append(buffer.data(), static_cast<std::size_t>(count));
  return !ended_;
}
