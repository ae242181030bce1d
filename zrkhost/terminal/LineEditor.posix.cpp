#include <histedit.h>

#include <algorithm>
#include <cstdio>
#include <iostream>

#include "base/Encoding.h"
#include "terminal/DisplayText.h"
#include "terminal/LineEditor.h"
#include "terminal/StandardInput.h"
#include "terminal/Terminal.h"
#include "terminal/UnicodeLocale.posix.h"

namespace zrkhost {

namespace {

constexpr int kRememberedLines = 1000;

// The choices below the line, in as many columns as fit.
std::string List(const std::vector<std::string>& choices, int terminalWidth) {
  constexpr int kGap = 2;
  int widest = 0;
  for (const auto& choice : choices) widest = std::max(widest, DisplayWidth(DisplayText(choice)));
  const int columns = std::max(1, terminalWidth / (widest + kGap));
  std::string list = "\n";
  int column = 0;
  for (const auto& choice : choices) {
    const auto shown = DisplayText(choice);
    list += shown;
    if (++column == columns || &choice == &choices.back()) {
      list += '\n';
      column = 0;
    } else {
      list.append(static_cast<std::size_t>(widest + kGap - DisplayWidth(shown)), ' ');
    }
  }
  return list;
}

}  // namespace

struct LineEditor::Editor {
  Editor(std::string prompt, std::function<Completion(std::string_view)> complete);
  ~Editor();
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  unsigned char CompleteWord();

  std::string Prompt;
  std::function<Completion(std::string_view)> Complete;
  HistEvent Event{};
  History* Lines = nullptr;
  EditLine* Edit = nullptr;
};

namespace {

// The library knows its caller by what it was given once.
template <class Editor>
Editor& EditorOf(EditLine* edit) {
  void* editor = nullptr;
  el_get(edit, EL_CLIENTDATA, &editor);
  return *static_cast<Editor*>(editor);
}

}  // namespace

LineEditor::Editor::Editor(std::string prompt, std::function<Completion(std::string_view)> complete)
    : Prompt(std::move(prompt)), Complete(std::move(complete)) {
  const UnicodeLocale locale;
  Lines = history_init();
  history(Lines, &Event, H_SETSIZE, kRememberedLines);
  history(Lines, &Event, H_SETUNIQUE, 1);
  Edit = el_init("zrkhost", stdin, stderr, stderr);
  el_set(Edit, EL_CLIENTDATA, this);
  char* (*const promptOf)(EditLine*) = [](EditLine* edit) { return EditorOf<Editor>(edit).Prompt.data(); };
  el_set(Edit, EL_PROMPT, promptOf);
  el_set(Edit, EL_EDITOR, "emacs");
  // A signal must not leave the terminal as the editor needs it.
  el_set(Edit, EL_SIGNAL, 1);
  el_set(Edit, EL_HIST, history, Lines);
  unsigned char (*const completeWord)(EditLine*, wint_t) = [](EditLine* edit, wint_t) {
    return EditorOf<Editor>(edit).CompleteWord();
  };
  // Wide, as the library keeps these texts; of 8-bit ones it would make copies that it never frees.
  el_wset(Edit, EL_ADDFN, L"zrkhost-complete", L"Complete the word", completeWord);
  el_set(Edit, EL_BIND, "^I", "zrkhost-complete", nullptr);
  el_set(Edit, EL_BIND, "^R", "em-inc-search-prev", nullptr);
}

LineEditor::Editor::~Editor() {
  el_end(Edit);
  history_end(Lines);
}

unsigned char LineEditor::Editor::CompleteWord() {
  const LineInfo* line = el_line(Edit);
  const std::string before(line->buffer, line->cursor);
  const Completion completion = Complete(before);
  if (completion.Choices.empty()) return CC_REFRESH_BEEP;
  const auto typed = before.substr(completion.From);
  if (completion.Word != typed) {
    el_deletestr(Edit, static_cast<int>(CharactersFromUtf8(typed).size()));
    el_insertstr(Edit, completion.Word.c_str());
    return CC_REFRESH;
  }
  if (completion.Choices.size() == 1) return CC_REFRESH_BEEP;
  std::cerr << List(completion.Choices, TerminalWidth(kStandardError)) << std::flush;
  return CC_REDISPLAY;
}

LineEditor::LineEditor(std::string prompt, std::function<Completion(std::string_view)> complete)
    : prompt_(std::move(prompt)) {
  if (IsTerminal(kStandardInput) && CanRewriteLines(kStandardError)) {
    editor_ = std::make_unique<Editor>(prompt_, std::move(complete));
  }
}

LineEditor::~LineEditor() = default;

bool LineEditor::Read(std::string& line) {
  if (!editor_) {
    std::cerr << prompt_ << std::flush;
    return ReadLine(line);
  }
  const UnicodeLocale locale;
  // The library itself would do so only behind the prompt, and what is typed in between would show twice.
  el_set(editor_->Edit, EL_PREP_TERM, 1);
  int count = 0;
  const char* text = el_gets(editor_->Edit, &count);
  if (!text || count <= 0) return false;
  line.assign(text, static_cast<std::size_t>(count));
  if (line.ends_with('\n')) line.pop_back();
  if (line.find_first_not_of(" \t") != std::string::npos) {
    history(editor_->Lines, &editor_->Event, H_ENTER, line.c_str());
  }
  return true;
}

}  // namespace zrkhost
