#include "tools/QuestionSearch.h"

#include <algorithm>
#include <functional>

namespace zrk::tools {
namespace {

constexpr std::string_view kQuestion = "revert changes";

}  // namespace

bool QuestionSearch::FindIn(std::string_view output) {
  // Reports are full of the question's first letter: a search that goes by it is slow.
  static const std::boyer_moore_horspool_searcher question(kQuestion.begin(), kQuestion.end());
  const std::string_view unsearched = output.substr(std::min(from_, output.size()));
  if (std::search(unsearched.begin(), unsearched.end(), question) != unsearched.end()) return true;
  from_ = output.size() - std::min(output.size(), kQuestion.size() - 1);
  return false;
}

}  // namespace zrk::tools
