#include "CATDlgNotify.h"

#include <set>
#include <utility>

#include "dialogs/UserInterface.h"
#include "framework/Misuse.h"

namespace standin {
namespace {

constexpr unsigned int kYesNoStyle = 0x800000;

// Known by their addresses, so that one that has ended is recognised without being touched.
std::set<const CATDlgNotify*>& LiveDialogs() {
  static auto* const dialogs = new std::set<const CATDlgNotify*>;
  return *dialogs;
}

DialogResponder& TheUser() {
  static auto* const user = new DialogResponder;
  return *user;
}

DialogAnswer Ask(const DialogRequest& request) {
  // A copy, as the user may be replaced while answering.
  const DialogResponder user = TheUser();
  const DialogAnswer answer = user ? user(request) : DialogAnswer::No;
  return request.IsQuestion() ? answer : DialogAnswer::Acknowledged;
}

}  // namespace

bool DialogRequest::IsQuestion() const {
  return (Style & kYesNoStyle) != 0;
}

void SetDialogResponder(DialogResponder responder) {
  TheUser() = std::move(responder);
}

int LiveDialogCount() {
  return static_cast<int>(LiveDialogs().size());
}

}  // namespace standin

CATDlgNotify::CATDlgNotify(CATDialog* parent, const CATUnicodeString& identifier, unsigned int style)
    : CATDialog(parent), hasParent_(parent != nullptr), identifier_(identifier), style_(style) {
  standin::LiveDialogs().insert(this);
}

CATDlgNotify::~CATDlgNotify() {
  standin::LiveDialogs().erase(this);
}

int CATDlgNotify::DisplayBlocked(const CATUnicodeString& message, const CATUnicodeString& title) {
  if (!standin::LiveDialogs().contains(this)) {
    standin::EndOnMisuse("A message box was shown after its end.");
  }
  if (!hasParent_) return 0;
  isUp_ = true;
  const standin::DialogAnswer answer =
      standin::Ask({identifier_.ConvertToChar(), title.ConvertToChar(), message.ConvertToChar(), style_});
  isUp_ = false;
  return static_cast<int>(answer);
}

void CATDlgNotify::ParentEnds() {
  if (!isUp_) CATDialog::ParentEnds();
}
