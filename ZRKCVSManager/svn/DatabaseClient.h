#pragma once

#include <string>
#include <string_view>

#include "svn/SVNContext.h"
#include "svn/WorkingCopyReport.h"

// Calling the client of today (1.7 and later), which never asks anybody: a question would hang the host.
namespace zrk::svn {

// " <command> --non-interactive \"<path>\"". The client takes what follows the last "@" of a path for a
// revision, so one that holds a "@" gets another at its end.
CATUnicodeString DatabaseCommand(const char* command, std::string_view path);

// A folder without a closing "\" as a program can be started in it: a drive needs one.
std::string LaunchFolder(std::string_view folder);

// Runs the command in the file's own folder. What the client answers is not looked at.
void RunDatabaseCommand(const SVNContext& context, const char* command, std::string_view path);

// The status of all that lies in a folder, by full path, and of one file, by the path that the client gives
// it. Each takes one run of the client, and one more that asks the working copy alone when the first report
// is cut off, as it is when the repository cannot be reached. What neither says is not there. Adds to
// `times`.
void ReadStatusOfFolder(const SVNContext& context, std::string_view folder, SVNTimes& times,
                        ReportedFiles& files);
ReportedFiles ReadStatusOfFile(const SVNContext& context, std::string_view path, SVNTimes& times);

}  // namespace zrk::svn
