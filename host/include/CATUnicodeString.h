#pragma once

#include <cstddef>
#include <string>

// The host's text.
//
// 8-bit text goes in and comes out in the platform's encoding: UTF-8 on Linux, the active code page on
// Windows. What went in comes out byte for byte, also when it is not well-formed or when the bytes of
// one character come in two pieces. A text never holds a character 0.
class CATUnicodeString {
public:
  CATUnicodeString() = default;
  // From 8-bit text, up to its first 0; null is the empty text.
  CATUnicodeString(const char* text);
  explicit CATUnicodeString(const wchar_t* text);
  CATUnicodeString(const CATUnicodeString&) = default;
  CATUnicodeString(CATUnicodeString&& other) noexcept;

  CATUnicodeString& operator=(const CATUnicodeString&) = default;
  CATUnicodeString& operator=(CATUnicodeString&& other) noexcept;
  CATUnicodeString& operator=(const char* text);
  CATUnicodeString& operator+=(const CATUnicodeString& other);
  CATUnicodeString& operator+=(const char* text);

  // The number as printf would write it with `format`, such as "%g".
  static CATUnicodeString BuildFromNum(double number, const char* format);

  // Characters as the wide text counts them; a byte that is no part of a character counts as one.
  int GetLengthInChar() const;
  int GetLengthInByte() const { return static_cast<int>(bytes_.size()); }

  // The 8-bit text, ended by a 0; good until this text changes.
  const char* ConvertToChar() const { return bytes_.c_str(); }
  std::wstring ConvertToWideChar() const;

  // Replaces the first occurrence of `searched`, sought by characters; nothing when it is empty or not
  // found.
  void ReplaceSubString(const CATUnicodeString& searched, const CATUnicodeString& replacement);

  friend bool operator==(const CATUnicodeString& a, const CATUnicodeString& b) {
    return a.bytes_ == b.bytes_;
  }

private:
  void ForgetCount();

  std::string bytes_;
  // How many characters the first countedBytes_ of bytes_ are. Command lines grow piece by piece and are
  // measured before each piece, so that counting anew would cost the square of their length.
  mutable std::size_t countedBytes_ = 0;
  mutable int countedCharacters_ = 0;
};

CATUnicodeString operator+(CATUnicodeString left, const CATUnicodeString& right);
