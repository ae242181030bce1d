#include <wchar.h>

#include <clocale>

#include "terminal/CharacterWidth.h"

namespace zrkhost {

namespace {

// The C library knows the widths of all characters, but tells them only in a locale that has these
// characters. The program's own stays as it is.
class UnicodeLocale {
public:
  UnicodeLocale() : before_(uselocale(Locale())) {}
  ~UnicodeLocale() { uselocale(before_); }
  UnicodeLocale(const UnicodeLocale&) = delete;
  UnicodeLocale& operator=(const UnicodeLocale&) = delete;

private:
  // Null, which leaves the thread's locale as it is, where the system has no such one.
  static locale_t Locale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
  }

  locale_t before_;
};

}  // namespace

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
