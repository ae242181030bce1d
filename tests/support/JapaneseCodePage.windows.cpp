#include "support/JapaneseCodePage.h"

#include <windows.h>

JapaneseCodePage::JapaneseCodePage() : before_(GetACP()) {}

JapaneseCodePage::~JapaneseCodePage() = default;

bool JapaneseCodePage::IsActive() {
  return GetACP() == 932;
}
