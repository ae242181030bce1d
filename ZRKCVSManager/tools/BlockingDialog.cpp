#include "tools/BlockingDialog.h"

#include <memory>

#include "CATApplicationFrame.h"
#include "CATDlgNotify.h"

namespace zrk::tools {
namespace {

struct DialogEnder {
  void operator()(CATDialog* dialog) const { dialog->RequestDestruction(); }
};

}  // namespace

std::optional<int> DisplayBlocked(DialogKind kind, const CATUnicodeString& message,
                                  const CATUnicodeString& title) {
  CATApplicationFrame* const frame = CATApplicationFrame::GetFrame();
  if (!frame) return std::nullopt;
  CATDialog* const mainWindow = frame->GetMainWindow();
  if (!mainWindow) return std::nullopt;
  const std::unique_ptr<CATDlgNotify, DialogEnder> dialog(
      new CATDlgNotify(mainWindow, "Warning", static_cast<unsigned int>(kind)));
  return dialog->DisplayBlocked(message, title);
}

}  // namespace zrk::tools
