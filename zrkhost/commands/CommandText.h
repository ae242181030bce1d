#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zrkhost {

struct Word {
  std::string Text;
  bool Quoted = false;

  bool operator==(const Word&) const = default;
};

// The words of a command line, separated by blanks and tabs. A word that begins with a double quote goes on
// to the next one and may be empty or hold blanks; "" inside it is one quote. A "#" at the beginning of a
// word starts a comment. Backslashes mean nothing. Throws CallError when a quote is not closed or when
// something follows it without a blank.
std::vector<Word> SplitCommand(std::string_view line);

// The lines of a file of commands, without their ends (LF or CR LF) and without a byte order mark.
std::vector<std::string> SplitLines(std::string_view text);

}  // namespace zrkhost
