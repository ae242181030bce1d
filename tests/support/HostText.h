#pragma once

#include <string>

#include "CATUnicodeString.h"

// A text of the host's as the tests compare it.
inline std::string Text(const CATUnicodeString& text) {
  return text.ConvertToChar();
}
