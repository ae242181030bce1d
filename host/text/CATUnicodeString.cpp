#include "CATUnicodeString.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "text/Characters.h"
#include "text/NativeText.h"

CATUnicodeString::CATUnicodeString(const char* text) : bytes_(text ? text : "") {}

CATUnicodeString::CATUnicodeString(const wchar_t* text)
    : bytes_(standin::NativeFromWide(text ? text : L"")) {}

CATUnicodeString::CATUnicodeString(CATUnicodeString&& other) noexcept {
  *this = std::move(other);
}

CATUnicodeString& CATUnicodeString::operator=(CATUnicodeString&& other) noexcept {
  bytes_.swap(other.bytes_);
  std::swap(countedBytes_, other.countedBytes_);
  std::swap(countedCharacters_, other.countedCharacters_);
  return *this;
}

CATUnicodeString& CATUnicodeString::operator=(const char* text) {
  bytes_ = text ? text : "";
  ForgetCount();
  return *this;
}

CATUnicodeString& CATUnicodeString::operator+=(const CATUnicodeString& other) {
  bytes_ += other.bytes_;
  return *this;
}

CATUnicodeString& CATUnicodeString::operator+=(const char* text) {
  if (text) bytes_ += text;
  return *this;
}

CATUnicodeString CATUnicodeString::BuildFromNum(double number, const char* format) {
  const int length = format ? std::snprintf(nullptr, 0, format, number) : 0;
  if (length <= 0) return {};
  // One more for the 0 that snprintf writes behind the text.
  std::string buffer(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(buffer.data(), buffer.size(), format, number);
  return buffer.c_str();
}

int CATUnicodeString::GetLengthInChar() const {
  const std::string_view uncounted = std::string_view(bytes_).substr(countedBytes_);
  // What follows the last ASCII character is counted every time: its bytes may be the beginning of a
  // character whose other bytes are still to come.
  const auto lastAscii = std::find_if(uncounted.rbegin(), uncounted.rend(),
                                      [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
  const auto settled = static_cast<std::size_t>(uncounted.rend() - lastAscii);
  countedBytes_ += settled;
  countedCharacters_ += standin::CountCharacters(uncounted.substr(0, settled));
  return countedCharacters_ + standin::CountCharacters(uncounted.substr(settled));
}

std::wstring CATUnicodeString::ConvertToWideChar() const {
  return standin::WideFromNative(bytes_);
}

void CATUnicodeString::ReplaceSubString(const CATUnicodeString& searched,
                                        const CATUnicodeString& replacement) {
  if (searched.bytes_.empty()) return;
  const std::size_t position = standin::FindByCharacters(bytes_, searched.bytes_);
  if (position == std::string::npos) return;
  bytes_.replace(position, searched.bytes_.size(), replacement.bytes_);
  ForgetCount();
}

void CATUnicodeString::ForgetCount() {
  countedBytes_ = 0;
  countedCharacters_ = 0;
}

CATUnicodeString operator+(CATUnicodeString left, const CATUnicodeString& right) {
  left += right;
  return left;
}
