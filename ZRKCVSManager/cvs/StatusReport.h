#pragma once

#include <string>
#include <string_view>

#include "ZRKCVSStatus.h"

// Reading the report of `cvs status -v`. For one file the client writes, with CR LF at every line's end
// (\t stands for a tab):
//
//   File: wheel left.CATPart\tStatus: Locally Modified
//
//      Working revision:\t1.5
//      Repository revision:\t1.5\t/cvs/root/car/wheel left.CATPart,v
//      Commit Identifier:\tkOGeDSplZWuXm2gG
//      Sticky Tag:\t\t(none)
//      Sticky Date:\t\t(none)
//      Sticky Options:\t-kb
//
//      Existing Tags:
//   \trelease-2                 \t(revision: 1.4)
//   \trelease-1                 \t(revision: 1.2)
//
// Nothing depends on the order of the lines. Values lose the last character of their line, which is the
// carriage return, whatever it is; only the name and the status words do not.
namespace zrk::cvs {

// Puts the value of the first label that the line holds into the record; a line without one is ignored.
void ParseCVSStatusLine(std::string_view line, ZRKCVSStatus& record);

// Reads the report of one file, line by line, and appends the first line below "Existing Tags:" to the
// tags. What the report does not tell stays as it was. Always 0.
int ParseCVSStatusBlock(std::string_view block, ZRKCVSStatus& record);

// Path of the file below the repository's root folder, separated by "\": what follows the root folder on
// the "Repository revision:" line, up to ",v". `cvsRoot` is the text of CVS\Root; its folder starts at
// its first "/". Empty when the report does not name the repository file or the root has no folder.
std::string GetRepositoryPath(std::string_view block, std::string_view cvsRoot);

}  // namespace zrk::cvs
