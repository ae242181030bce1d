#include "text/TextSearch.h"

#include <utility>

namespace zrk::text {
namespace {

unsigned char Hash(char first, char second) {
  return static_cast<unsigned char>(static_cast<unsigned char>(first) * 31 ^
                                    static_cast<unsigned char>(second));
}

}  // namespace

TextSearch::TextSearch(std::string_view searched) : searched_(searched) {
  if (searched_.size() < 2) return;
  const std::size_t last = searched_.size() - 1;
  for (std::size_t place = 1; place < last; ++place) {
    places_[Hash(searched_[place - 1], searched_[place])] = place;
  }
  const std::size_t before = std::exchange(places_[Hash(searched_[last - 1], searched_[last])], last);
  stepFromEnd_ = last - before;
}

std::size_t TextSearch::Find(std::string_view text, std::size_t from) const {
  if (searched_.size() < 2) return text.find(searched_, from);
  const std::size_t last = searched_.size() - 1;
  for (std::size_t end = from + last; end < text.size();) {
    const std::size_t place = places_[Hash(text[end - 1], text[end])];
    if (place == 0) {
      // By far the most frequent: a branch of its own lets the processor go on without the table.
      end += last;
    } else if (place < last) {
      end += last - place;
    } else if (text[end - last] == searched_[0] && text.substr(end - last, searched_.size()) == searched_) {
      return end - last;
    } else {
      end += stepFromEnd_;
    }
  }
  return std::string_view::npos;
}

}  // namespace zrk::text
