#pragma once

#include <string>
#include <string_view>

// The report of `svn status -v -u --xml` on a file that this owner has locked.
inline std::string LockedXMLReport(std::string_view owner) {
  std::string escaped;
  for (const char character : owner) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        escaped += character;
    }
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target\r\n   path=\"a\">\r\n<entry\r\n  "
         " path=\"a\">\r\n"
         "<wc-status\r\n   item=\"normal\"\r\n   revision=\"2\">\r\n</wc-status>\r\n<repos-status\r\n   "
         "item=\"none\">\r\n"
         "<lock>\r\n<token>opaquelocktoken:1</token>\r\n<owner>" +
         escaped +
         "</owner>\r\n<comment>c</comment>\r\n</lock>\r\n</repos-status>\r\n</entry>\r\n</target>\r\n</"
         "status>\r\n";
}

// Characters of a lock owner, those with a meaning in XML among them.
inline constexpr std::string_view kOwnerCharacters = "abcxyzABC0123456789 .&<>\"'()@";
