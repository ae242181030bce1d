#include "tools/BlockingDialog.h"

#include "CATApplicationFrame.h"
#include "CATDlgNotify.h"

namespace zrk::tools {
namespace {

CATDialog* MainWindow() {
  CATApplicationFrame* const frame = CATApplicationFrame::GetFrame();
  return frame ? frame->GetMainWindow() : nullptr;
}

}  // namespace

std::optional<int> DisplayBlocked(DialogKind kind, const CATUnicodeString& message,
                                  const CATUnicodeString& title) {
  CATDialog* const mainWindow = MainWindow();
  if (!mainWindow) return std::nullopt;
  auto* const dialog = new CATDlgNotify(mainWindow, "Warning", static_cast<unsigned int>(kind));
  const int answer = dialog->DisplayBlocked(message, title);
  // A window that was closed meanwhile has taken its dialogs along.
  if (MainWindow() == mainWindow) dialog->RequestDestruction();
  return answer;
}

}  // namespace zrk::tools
