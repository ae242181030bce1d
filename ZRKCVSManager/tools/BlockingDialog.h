#pragma once

#include <functional>
#include <optional>

#include "CATUnicodeString.h"

namespace zrk::tools {

// Values are the dialog library's styles.
enum class DialogKind : unsigned int { Notice = 0x4100200, Question = 0x4800200 };

// What CATDlgNotify::DisplayBlocked gives for yes.
inline constexpr int kAnswerYes = 3;

struct DialogTexts {
  CATUnicodeString Message;
  CATUnicodeString Title;
};

// Shows a warning above the application's main window and waits for the user. Gives the user's answer;
// nothing when there is no application frame or no main window, and so nothing was shown. The texts are
// asked for once the dialog is made, and not at all when nothing can be shown.
std::optional<int> DisplayBlocked(DialogKind kind, const std::function<DialogTexts()>& buildTexts);

}  // namespace zrk::tools
