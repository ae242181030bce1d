#pragma once

// What the program ends with.
namespace zrkhost {

constexpr int kAllWell = 0;
constexpr int kCommandFailed = 1;
// The call cannot be carried out as it was made.
constexpr int kNothingRun = 2;

}  // namespace zrkhost
