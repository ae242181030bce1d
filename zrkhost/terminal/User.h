#pragma once

#include <optional>

#include "dialogs/UserInterface.h"
#include "terminal/OutputCapture.h"
#include "terminal/ProgressLine.h"

namespace zrkhost {

// The person before the screen: sees the host's dialogs on standard error and answers its questions.
class User {
public:
  // `answer`: what every question is answered; absent: asked when standard input is a terminal, else no.
  // `progress` gives way to a dialog.
  User(OutputCapture& output, ProgressLine& progress, std::optional<bool> answer);

  standin::DialogAnswer Answer(const standin::DialogRequest& request);

private:
  bool AnswerQuestion();

  OutputCapture& output_;
  ProgressLine& progress_;
  std::optional<bool> answer_;
};

}  // namespace zrkhost
