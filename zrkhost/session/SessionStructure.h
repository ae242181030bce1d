#pragma once

#include <string>

#include "session/SessionDescription.h"

namespace zrkhost {

// The largest tree that is built. A few references nested in each other can describe more places than any
// memory holds.
constexpr std::size_t kMostPlaces = 2'000'000;
// The deepest tree that is built. A printed tree is indented and a report holds whole paths, so that both
// grow with the square of the depth: to 100 MB each in a tree this deep.
constexpr std::size_t kMostLevels = 10'000;

// Throws CallError with the JSON pointer of the place when the products do not fit together: a root or a
// reference that is not described, a product that contains itself, a tree that is too large.
void CheckStructure(const SessionDescription& session, const std::string& fileName);

}  // namespace zrkhost
