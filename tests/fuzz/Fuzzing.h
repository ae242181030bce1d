#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// What the fuzzers share. Each takes its input twice: as it is, for what holds of any text; and as the
// source of values from which a well-formed text is built, whose reading must give those values back.

// A promise that does not hold is a finding.
inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// A text of at most `longest` characters out of `alphabet`.
inline std::string ConsumeWord(FuzzedDataProvider& values, std::string_view alphabet, std::size_t longest) {
  std::string word = values.ConsumeRandomLengthString(longest);
  for (char& character : word) character = alphabet[static_cast<unsigned char>(character) % alphabet.size()];
  return word;
}

// Letters, digits and what else occurs in file names; nothing that has a meaning in a report.
inline constexpr std::string_view kPlainCharacters = "abcdefghijklmnopqrstuvwxyzABCXYZ0123456789 .-+_()@#";
// The same and bytes over 127, in no encoding.
inline constexpr std::string_view kNameCharacters =
    "abcdefghijklmnopqrstuvwxyzABCXYZ0123456789 .-+_()@#\xC3\xBC";
// Characters of a lock owner, those with a meaning in XML among them.
inline constexpr std::string_view kOwnerCharacters = "abcxyzABC0123456789 .&<>\"'()@";

// Up to `most` names of at least one character, all different.
inline std::vector<std::string> ConsumeNames(FuzzedDataProvider& values, std::size_t most,
                                             std::string_view alphabet = kNameCharacters) {
  std::vector<std::string> names(values.ConsumeIntegralInRange<std::size_t>(0, most));
  for (std::size_t i = 0; i < names.size(); ++i) {
    names[i] = "n" + std::to_string(i) + ConsumeWord(values, alphabet, 40);
  }
  return names;
}

// The pieces between line feeds; the last has none behind it.
inline std::vector<std::string_view> SplitAtLineFeeds(std::string_view text) {
  std::vector<std::string_view> pieces;
  for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    pieces.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  pieces.push_back(text);
  return pieces;
}
