#pragma once

#include <optional>

#include "CATUnicodeString.h"

namespace zrk::tools {

// Values are the dialog library's styles.
enum class DialogKind : unsigned int { Notice = 0x4100200, Question = 0x4800200 };

// What CATDlgNotify::DisplayBlocked gives for yes.
inline constexpr int kAnswerYes = 3;

// Shows a warning above the application's main window and waits for the user. Gives the user's answer;
// nothing when there is no application frame or no main window, and so nothing was shown.
std::optional<int> DisplayBlocked(DialogKind kind, const CATUnicodeString& message,
                                  const CATUnicodeString& title);

}  // namespace zrk::tools
