#pragma once

#include <array>
#include <compare>
#include <cstdint>

// Identifier of an interface: 128 bits, unique for all time. Two interfaces are the same exactly when
// their identifiers are.
struct CATIID {
  std::uint32_t Data1 = 0;
  std::uint16_t Data2 = 0;
  std::uint16_t Data3 = 0;
  std::array<std::uint8_t, 8> Data4{};

  // NOLINTNEXTLINE(modernize-use-nullptr): taken for a null pointer is the 0 of a comparison that is not
  // written here.
  // NOLINTNEXTLINE(modernize-use-nullptr): takes what the compiler adds for a null pointer
  auto operator<=>(const CATIID&) const = default;
};
