#pragma once

#include <string>

// Pieces of the client's reports, as the client writes them.
namespace zrk::sample {

inline constexpr const char* kCVSRoot = ":pserver:anna@host:/cvs/root";

// What `cvs status -v` says about one file, from "File:" to its last line end. `repositoryFile` is the
// path below the repository's root folder, separated by "/".
inline std::string StatusBlock(const std::string& repositoryFile, const std::string& revision,
                               const std::string& status = "Up-to-date") {
  const std::string name = repositoryFile.substr(repositoryFile.rfind('/') + 1);
  return "File: " + name + " \tStatus: " + status + "\r\n\r\n" +  //
         "   Working revision:\t" + revision + "\r\n" +           //
         "   Repository revision:\t" + revision + "\t/cvs/root/" + repositoryFile + ",v\r\n" +
         "   Commit Identifier:\tkOGeDSplZWuXm2gG\r\n" +       //
         "   Sticky Tag:\t\t(none)\r\n" +                      //
         "   Sticky Date:\t\t(none)\r\n" +                     //
         "   Sticky Options:\t-kb\r\n\r\n" +                   //
         "   Existing Tags:\r\n" +                             //
         "\trelease-2                \t(revision: 1.4)\r\n" +  //
         "\trelease-1                \t(revision: 1.2)\r\n\r\n";
}

// What stands before each block.
inline constexpr const char* kSeparatorLine =
    "===================================================================\r\n";

}  // namespace zrk::sample
