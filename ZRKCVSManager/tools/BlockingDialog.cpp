#include "tools/BlockingDialog.h"

#include <memory>

#include "CATApplicationFrame.h"
#include "CATDlgNotify.h"

namespace zrk::tools {
namespace {

// A dialog is not deleted but asked to go, also when its window was closed while it was up.
struct DestructionRequest {
  void operator()(CATDialog* dialog) const { dialog->RequestDestruction(); }
};

}  // namespace

std::optional<int> DisplayBlocked(DialogKind kind, const std::function<DialogTexts()>& buildTexts) {
  CATApplicationFrame* const frame = CATApplicationFrame::GetFrame();
  if (!frame) return std::nullopt;
  CATDialog* const mainWindow = frame->GetMainWindow();
  if (!mainWindow) return std::nullopt;
  const std::unique_ptr<CATDlgNotify, DestructionRequest> dialog(
      new CATDlgNotify(mainWindow, "Warning", static_cast<unsigned int>(kind)));
  const DialogTexts texts = buildTexts();
  return dialog->DisplayBlocked(texts.Message, texts.Title);
}

}  // namespace zrk::tools
