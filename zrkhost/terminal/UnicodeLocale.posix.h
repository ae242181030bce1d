#pragma once

#include <clocale>

namespace zrkhost {

// While one lives the C library's functions know all characters on this thread. What the program's own locale
// says stays as it is, and so do other threads.
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

}  // namespace zrkhost
