#include "windows/CodePage.h"

#include <windows.h>

#include <atomic>

namespace standin {
namespace {

std::atomic<unsigned int> codePage = kUtf8CodePage;

}  // namespace

void SetCodePage(unsigned int page) {
  codePage = page;
}

unsigned int CodePage() {
  return codePage;
}

}  // namespace standin

BOOL IsDBCSLeadByte(BYTE byte) {
  switch (standin::CodePage()) {
    case 932:
      return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    case 936:
    case 949:
    case 950:
      return byte >= 0x81 && byte <= 0xFE;
    default:
      return FALSE;
  }
}
