#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace zrk::text {

// Searches long texts for one short one, as std::string_view::find does, but in leaps: the two characters
// under the end of the searched text tell how far it can be moved on (Horspool's search, by pairs).
// Reports are full of the beginnings of what is searched, which make a search character by character slow.
class TextSearch {
public:
  explicit TextSearch(std::string_view searched);

  // Position of the first occurrence that starts at `from` or behind; npos when there is none.
  std::size_t Find(std::string_view text, std::size_t from = 0) const;

private:
  std::string searched_;
  // By the hash of a pair: where its second character last stands in the searched text; 0 for nowhere.
  std::array<std::size_t, 256> places_{};
  // How far to go on when all but the pair at the end turned out to differ.
  std::size_t stepFromEnd_ = 0;
};

}  // namespace zrk::text
