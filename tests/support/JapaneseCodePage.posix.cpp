#include "support/JapaneseCodePage.h"
#include "windows/CodePage.h"

JapaneseCodePage::JapaneseCodePage() : before_(standin::CodePage()) {
  standin::SetCodePage(932);
}

JapaneseCodePage::~JapaneseCodePage() {
  standin::SetCodePage(before_);
}

bool JapaneseCodePage::IsActive() {
  return standin::CodePage() == 932;
}
