#include "terminal/User.h"

#include <iostream>
#include <string>

#include "base/Encoding.h"
#include "terminal/DisplayText.h"
#include "terminal/StandardInput.h"
#include "terminal/Terminal.h"

namespace zrkhost {

namespace {}  // namespace

User::User(OutputCapture& output, ProgressLine& progress, std::optional<bool> answer)
    : output_(output), progress_(progress), answer_(answer) {
  if (!answer_ && !IsTerminal(kStandardInput)) answer_ = false;
}

standin::DialogAnswer User::Answer(const standin::DialogRequest& request) {
  const ProgressLine::Hidden hidden(progress_);
  // What was written before the dialog came up is to be read before it.
  output_.Forward();
  std::cerr << "[" << DisplayText(Utf8FromNative(request.Title)) << "] "
            << DisplayText(Utf8FromNative(request.Message), LineBreaks::Keep);
  if (!request.IsQuestion()) {
    std::cerr << std::endl;
    return standin::DialogAnswer::Acknowledged;
  }
  return AnswerQuestion() ? standin::DialogAnswer::Yes : standin::DialogAnswer::No;
}

bool User::AnswerQuestion() {
  if (answer_) {
    std::cerr << " [y/n] " << (*answer_ ? "y" : "n") << std::endl;
    return *answer_;
  }
  std::string line;
  for (;;) {
    std::cerr << " [y/n] " << std::flush;
    if (!ReadLine(line)) {
      std::cerr << std::endl;
      return false;
    }
    if (line == "y" || line == "Y" || line == "yes") return true;
    if (line == "n" || line == "N" || line == "no") return false;
  }
}

}  // namespace zrkhost
