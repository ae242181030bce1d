#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Turns line feeds into carriage return and line feed, in text that comes in pieces.
class LineEndTranslator {
public:
  // Appends the translation of `text`, all of it. A line feed that has its carriage return already, be it
  // at the end of the piece before, gets no second one.
  void Translate(std::string_view text, std::string& translated);

private:
  char last_ = '\0';
};

// Takes the date off the revision lines of `cvs status`. With a local root they read
//
//    Working revision:<tab>1.4<tab>2026-11-21 08:04:17 +0000
//
// while those of a server end behind the revision. Lines such as "New file!" hold no second tab and stay.
class RevisionTrimmer {
public:
  // Appends what is left of `text`; nothing is held back.
  void Translate(std::string_view text, std::string& translated);

private:
  enum class Place { Label, Revision, Date, OtherLine };

  Place place_ = Place::Label;
  std::size_t matched_ = 0;
};
