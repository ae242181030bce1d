#include "tools/QuestionSearch.h"

#include <algorithm>

namespace zrk::tools {
namespace {

constexpr std::string_view kQuestion = "revert changes";
// Of its letters the one that is rarest in reports: looking for it passes over most of an output at once.
constexpr char kRareLetter = 'g';
constexpr std::size_t kBeforeRareLetter = kQuestion.find(kRareLetter);

}  // namespace

bool QuestionSearch::FindIn(std::string_view output) {
  std::size_t found = output.find(kRareLetter, from_ + kBeforeRareLetter);
  for (; found != std::string_view::npos; found = output.find(kRareLetter, found + 1)) {
    if (output.substr(found - kBeforeRareLetter, kQuestion.size()) == kQuestion) return true;
  }
  from_ = output.size() - std::min(output.size(), kQuestion.size() - 1);
  return false;
}

}  // namespace zrk::tools
