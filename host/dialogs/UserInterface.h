#pragma once

#include <functional>
#include <string>

// Control of the stand-in: the interactive application and the user in front of it.
namespace standin {

// A message box as it is put before the user.
struct DialogRequest {
  std::string Identifier;
  std::string Title;
  std::string Message;
  unsigned int Style = 0;

  // Answered with yes or no; else a notice that is only acknowledged.
  bool IsQuestion() const;
};

// What a dialog's DisplayBlocked returns.
enum class DialogAnswer { Acknowledged = 1, Yes = 3, No = 4 };

// The user. Without one, notices are acknowledged and questions answered with no. A notice can only be
// acknowledged; a question may be put away like one, without a yes or a no.
using DialogResponder = std::function<DialogAnswer(const DialogRequest&)>;
void SetDialogResponder(DialogResponder responder);

// Whether there is an application frame, and whether it has a main window. At the start there is neither.
// A main window that goes takes its message boxes with it, but for one that is up.
void SetApplicationFrame(bool frame, bool mainWindow);

// Message boxes that were made and have not ended. Showing one that has ended ends the process with a
// message on standard error.
int LiveDialogCount();

}  // namespace standin
