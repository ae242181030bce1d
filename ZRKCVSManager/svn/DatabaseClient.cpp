#include "svn/DatabaseClient.h"

#include "text/Path.h"
#include "tools/RunClock.h"

namespace zrk::svn {
namespace {

constexpr const char* kStatusOfBoth = " status -v -u --xml --non-interactive --ignore-externals";
constexpr const char* kStatusOfWorkingCopy = " status -v --xml --non-interactive --ignore-externals";

// In double quotes, as every program splits its command line: a quotation mark within is escaped, and the
// backslashes before it and at the end are doubled.
CATUnicodeString Quoted(std::string_view path) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char character : path) {
    if (character == '"') quoted.append(backslashes + 1, '\\');
    backslashes = character == '\\' ? backslashes + 1 : 0;
    quoted += character;
  }
  for (; !path.empty() && text::NameOf(path).empty(); path = text::FolderOf(path)) quoted += '\\';
  return (quoted + '"').c_str();
}

// As an argument of the client.
CATUnicodeString PathArgument(std::string_view path) {
  std::string target(path);
  if (text::Find(target, "@") != std::string_view::npos) target += '@';
  return CATUnicodeString(" ") + Quoted(target);
}

// `target` stands behind each command, `prefix` before the paths of the reports.
void ReadStatus(const SVNContext& context, const CATUnicodeString& target, std::string_view folder,
                std::string_view prefix, SVNTimes& times, ReportedFiles& files) {
  const auto read = [&](const char* command, Repository repository) {
    const tools::RunClock runClock;
    CATUnicodeString report;
    tools::RunTool(context.Tools, CATUnicodeString(command) + target, LaunchFolder(folder).c_str(), report);
    times.StatusCheck += static_cast<double>(runClock.Elapsed());

    const tools::RunClock readClock;
    const bool complete = ReadWorkingCopyReport(report, repository, prefix, files);
    times.XMLParsing += static_cast<double>(readClock.Elapsed());
    return complete;
  };
  if (!read(kStatusOfBoth, Repository::Asked)) read(kStatusOfWorkingCopy, Repository::NotAsked);
}

}  // namespace

CATUnicodeString DatabaseCommand(const char* command, std::string_view path) {
  return CATUnicodeString(" ") + command + " --non-interactive" + PathArgument(path);
}

std::string LaunchFolder(std::string_view folder) {
  std::string launch(folder);
  if (launch.empty() || launch.ends_with(':')) launch += '\\';
  return launch;
}

void RunDatabaseCommand(const SVNContext& context, const char* command, std::string_view path) {
  CATUnicodeString answer;
  tools::RunTool(context.Tools, DatabaseCommand(command, path), LaunchFolder(text::FolderOf(path)).c_str(),
                 answer);
}

void ReadStatusOfFolder(const SVNContext& context, std::string_view folder, SVNTimes& times,
                        ReportedFiles& files) {
  ReadStatus(context, {}, folder, std::string(folder) + '\\', times, files);
}

ReportedFiles ReadStatusOfFile(const SVNContext& context, std::string_view path, SVNTimes& times) {
  ReportedFiles files;
  ReadStatus(context, PathArgument(path), text::FolderOf(path), "", times, files);
  return files;
}

}  // namespace zrk::svn
