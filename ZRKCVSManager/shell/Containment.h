#pragma once

namespace zrk::shell {

// Runs what the host called and gives its result. The host's code is not built for exceptions: one that
// gets this far, as when memory is exhausted, ends here, and the result is `failure`.
template <class Result, class Operation>
Result ContainedOr(Result failure, Operation operation) noexcept {
  try {
    return operation();
  } catch (...) {
    return failure;
  }
}

}  // namespace zrk::shell
