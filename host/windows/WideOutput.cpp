#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <string>

#include "text/NativeText.h"

namespace {

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

// The number of wide characters, or negative when the format cannot be followed.
int Format(std::wstring& text, const wchar_t* format, std::va_list arguments) {
  wchar_t* buffer = nullptr;
  std::size_t size = 0;
  std::FILE* const stream = open_wmemstream(&buffer, &size);
  if (stream == nullptr) return -1;
  const int count = std::vfwprintf(stream, format, arguments);
  const bool closed = std::fclose(stream) == 0;
  const std::unique_ptr<wchar_t, Free> owner(buffer);
  if (count < 0 || !closed) return -1;
  text.assign(buffer, size);
  return count;
}

}  // namespace

// Stands in the place of wprintf in everything that is linked with this library. A stream of the C
// library takes either wide or narrow text for all its life; so wide text becomes narrow on its way.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the linker gives the name
extern "C" int __wrap_wprintf(const wchar_t* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::wstring text;
  const int count = Format(text, format, arguments);
  va_end(arguments);
  if (count < 0) return count;
  const std::string narrow = standin::NativeFromWide(text);
  return std::fwrite(narrow.data(), 1, narrow.size(), stdout) == narrow.size() ? count : -1;
}
