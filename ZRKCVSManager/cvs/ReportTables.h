#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "CATUnicodeString.h"

// The reports of a refresh, filed by the file that each piece is about.
namespace zrk::cvs {

// Full local path of a file, separated by "\", to what a report says about it. Keys are compared byte by
// byte. The first entry of a key holds; later ones are left out.
using ReportTable = std::map<std::string, std::string, std::less<>>;

// Adds the blocks of a `cvs status -v` report: each from "File:" up to the next "=====". The key is
// `sandboxRoot` followed by the path that the block's "Repository revision:" line names.
void AddStatusReport(std::string_view report, const CATUnicodeString& sandboxRoot,
                     const CATUnicodeString& cvsRoot, ReportTable& table);

// Adds the lines of a `cvs -n edit` report, which name a file and who edits it:
//
//   car/sub/wheel left.CATPart\tanna\tSat Nov 21 07:40:02 2026 GMT\thost\t/home/anna/car/sub
//
// Every line loses its last character, the carriage return; what follows the last line end is no line.
// The key is `sandboxRoot` followed by the text up to the first tab with "/" turned into "\", the value
// is the line with its tabs turned into line feeds.
//
// The length of an empty line, less its last character, wraps: the line is all the rest of the report, and
// only a path with a line end would be looked up there. Once such lines took the length of the report and 64
// KiB more in all, further ones are left out.
void AddEditReport(std::string_view report, const CATUnicodeString& sandboxRoot, ReportTable& table);

}  // namespace zrk::cvs
