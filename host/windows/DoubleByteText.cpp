#include "windows/DoubleByteText.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <string>
#include <system_error>

#include "text/Characters.h"
#include "text/NativeText.h"
#include "windows/CodePage.h"

namespace standin {
namespace {

class Conversion {
public:
  Conversion(const std::string& to, const std::string& from)
      : conversion_(iconv_open(to.c_str(), from.c_str())) {
    if (conversion_ == kNone) throw std::system_error(errno, std::generic_category());
  }
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;
  ~Conversion() { iconv_close(conversion_); }

  // Converts one character; the number of bytes put out, 0 when it is none or has no counterpart.
  std::size_t Convert(const void* character, std::size_t bytes, void* out, std::size_t room) {
    // iconv writes to none of what it reads.
    char* source = const_cast<char*>(static_cast<const char*>(character));
    char* target = static_cast<char*>(out);
    const std::size_t before = room;
    iconv(conversion_, nullptr, nullptr, nullptr, nullptr);
    return iconv(conversion_, &source, &bytes, &target, &room) == 0 ? before - room : 0;
  }

private:
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the value of the C library
  static inline const iconv_t kNone = reinterpret_cast<iconv_t>(-1);
  iconv_t conversion_;
};

std::string Name() {
  return "CP" + std::to_string(CodePage());
}

}  // namespace

std::wstring WideFromDoubleByte(std::string_view text) {
  Conversion conversion("WCHAR_T", Name());
  std::wstring wide;
  while (!text.empty()) {
    const std::string_view character = text.substr(0, CharacterBytes(text));
    text.remove_prefix(character.size());
    const auto first = static_cast<unsigned char>(character.front());
    wchar_t converted = 0;
    if (first < 0x80) {
      wide += static_cast<wchar_t>(first);
    } else if (conversion.Convert(character.data(), character.size(), &converted, sizeof(converted)) != 0) {
      wide += converted;
    } else {
      for (const char byte : character)
        wide += static_cast<wchar_t>(kByteEscape + static_cast<unsigned char>(byte));
    }
  }
  return wide;
}

std::string DoubleByteFromWide(std::wstring_view text) {
  Conversion conversion(Name(), "WCHAR_T");
  std::string native;
  for (const wchar_t wide : text) {
    const auto character = static_cast<char32_t>(wide);
    std::array<char, 4> converted{};
    if (character < 0x80) {
      native += static_cast<char>(character);
    } else if (character >= kByteEscape && character <= kByteEscape + 0xFF) {
      native += static_cast<char>(static_cast<unsigned char>(character - kByteEscape));
    } else if (const std::size_t bytes =
                   conversion.Convert(&wide, sizeof(wide), converted.data(), converted.size())) {
      native.append(converted.data(), bytes);
    } else {
      native += '?';
    }
  }
  return native;
}

}  // namespace standin
