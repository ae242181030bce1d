#include <cwchar>

#include "terminal/CharacterWidth.h"
#include "terminal/UnicodeLocale.posix.h"

namespace zrkhost {

int CharacterWidth(std::u32string_view characters) {
  const UnicodeLocale locale;
  int width = 0;
  for (const char32_t character : characters) {
    const int columns = wcwidth(static_cast<wchar_t>(character));
    // A character that the system does not know yet is shown as a box.
    width += columns < 0 ? 1 : columns;
  }
  return width;
}

}  // namespace zrkhost
