#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zrkhost {

// How the end of a line that is being typed can go on.
struct Completion {
  // Where the word begins, in bytes, and what is to stand in its place.
  std::size_t From = 0;
  std::string Word;
  // What the word can be, for a person to choose from; one: the word is complete.
  std::vector<std::string> Choices = {};
};

// Asks a person for lines. On a terminal that can rewrite lines these can be edited, earlier ones come back,
// and Tab completes words; elsewhere a line is what is read. On Windows the console itself edits and
// remembers.
class LineEditor {
public:
  // `complete` is given the line up to the cursor. Prompt and lines appear on standard error; `prompt` is
  // ASCII.
  LineEditor(std::string prompt, std::function<Completion(std::string_view)> complete);
  ~LineEditor();
  LineEditor(const LineEditor&) = delete;
  LineEditor& operator=(const LineEditor&) = delete;

  // The next line, without its end; false when the input ends.
  bool Read(std::string& line);

private:
  struct Editor;

  std::string prompt_;
  // Null where lines are read as they come.
  std::unique_ptr<Editor> editor_;
};

}  // namespace zrkhost
