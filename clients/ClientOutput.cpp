#include "ClientOutput.h"

void LineEndTranslator::Translate(std::string_view text, std::string& translated) {
  while (!text.empty()) {
    const std::size_t lineFeed = text.find('\n');
    const std::string_view line = text.substr(0, lineFeed);
    translated += line;
    if (!line.empty()) last_ = line.back();
    if (lineFeed == std::string_view::npos) return;
    translated += last_ == '\r' ? "\n" : "\r\n";
    last_ = '\n';
    text.remove_prefix(lineFeed + 1);
  }
}

void RevisionTrimmer::Translate(std::string_view text, std::string& translated) {
  constexpr std::string_view kLabel = "   Working revision:\t";
  for (const char character : text) {
    if (character == '\n') {
      place_ = Place::Label;
      matched_ = 0;
    } else if (place_ == Place::Label) {
      if (character != kLabel[matched_]) {
        place_ = Place::OtherLine;
      } else if (++matched_ == kLabel.size()) {
        place_ = Place::Revision;
      }
    } else if (place_ == Place::Revision && character == '\t') {
      place_ = Place::Date;
    }
    if (place_ != Place::Date) translated += character;
  }
}
