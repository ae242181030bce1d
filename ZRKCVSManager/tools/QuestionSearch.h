#pragma once

#include <cstddef>
#include <string_view>

namespace zrk::tools {

// Looks for the question "revert changes" in an output that grows piece by piece. Each call looks at what
// is new, and at as much before it as the question can reach back into, so that a long output costs no
// more than its length.
class QuestionSearch {
public:
  // Whether the output holds the question. It is the whole output as it is now: a letter whose bytes came
  // in two pieces may have another length than its first piece had.
  bool FindIn(std::string_view output);

private:
  // No question begins before.
  std::size_t from_ = 0;
};

}  // namespace zrk::tools
