#pragma once

#include "CATDialog.h"
#include "CATUnicodeString.h"

// A message box.
class CATDlgNotify : public CATDialog {
public:
  // `style` is a sum of the dialog library's style bits, among them 0x100000 for a notice that is
  // acknowledged and 0x800000 for a question answered with yes or no.
  CATDlgNotify(CATDialog* parent, const CATUnicodeString& identifier, unsigned int style);

  // Shows the message and waits for the user: 1 for a notice acknowledged, 3 for yes, 4 for no. Without a
  // parent there is nothing to show it on: 0 at once. A box that is up when its parent ends does not end
  // with it: whoever shows it still has to ask it to go.
  int DisplayBlocked(const CATUnicodeString& message, const CATUnicodeString& title);

protected:
  ~CATDlgNotify() override;
  void ParentEnds() override;

private:
  bool isUp_ = false;
  const bool hasParent_;
  CATUnicodeString identifier_;
  unsigned int style_;
};
