#include "terminal/LineEditor.h"

#include <iostream>

#include "terminal/StandardInput.h"

namespace zrkhost {

struct LineEditor::Editor {};

LineEditor::LineEditor(std::string prompt, std::function<Completion(std::string_view)>)
    : prompt_(std::move(prompt)) {}

LineEditor::~LineEditor() = default;

bool LineEditor::Read(std::string& line) {
  std::cerr << prompt_ << std::flush;
  return ReadLine(line);
}

}  // namespace zrkhost
