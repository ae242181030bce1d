#include <windows.h>

#include "text/NativeText.h"

namespace standin {
namespace {

std::wstring Widen(UINT codePage, std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), length);
  return wide;
}

}  // namespace

std::wstring WideFromNative(std::string_view text) {
  return Widen(CP_ACP, text);
}

std::string NativeFromWide(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string native(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, native.data(), length, nullptr, nullptr);
  return native;
}

std::string NativeFromUtf8(std::string_view text) {
  return NativeFromWide(Widen(CP_UTF8, text));
}

int CountCharacters(std::string_view text) {
  if (text.empty()) return 0;
  return MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
}

}  // namespace standin
