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
// carriage return, whatever it is, and all their tabs; the working revision loses its blanks too. The name
// and the status words keep both, but the name loses its blanks.
namespace zrk::cvs {

// Puts the value of the line's label into the record. The labels are looked for in the order of the record's
// fields, each from the line's start, but "Working revision:" right after "File:"; the first one found
// anywhere counts. A line without a label is ignored, and so is one with "File:" and no "Status:".
void ParseCVSStatusLine(std::string_view line, ZRKCVSStatus& record);

// Reads the report of one file, line by line, and appends the first line below "Existing Tags:" to the
// tags. What the report does not give stays as it was. Always 0.
int ParseCVSStatusBlock(std::string_view block, ZRKCVSStatus& record);

// Path of the file below the repository's root folder, separated by "\": what follows the first mention of
// the root folder behind "Repository revision:", up to ",v", or to the end of the block without one.
// `cvsRoot` is the text of CVS\Root; its folder starts at its first "/". Empty when the report does not
// name the repository file or the root has no folder.
std::string GetRepositoryPath(std::string_view block, std::string_view cvsRoot);

}  // namespace zrk::cvs
