#pragma once

#include "CATUnicodeString.h"
#include "ZRKIAttributes.h"
#include "tools/ToolRun.h"

namespace zrk::svn {

// Where the time of a Subversion refresh went, in ticks of the C runtime's clock (milliseconds).
struct SVNTimes {
  // Text form: reading entries files and the text report. With a database: the runs of the client.
  double StatusCheck = 0.0;
  // Text form: the XML report, its run included. With a database: the reading of the reports.
  double XMLParsing = 0.0;
  // Writing attributes.
  double Attributing = 0.0;
};

// What the Subversion operations work with; it belongs to the manager.
struct SVNContext {
  tools::ToolContext Tools;
  // Folder in which svn.exe runs for documents of the text form.
  const CATUnicodeString& WorkingFolder;
  const ZRKIAttClass_var& AttributeClass;
};

// " <command> \"<path>\"", the form that all file commands of the text form but the deletion have.
inline CATUnicodeString FileCommand(const char* command, const CATUnicodeString& path) {
  return CATUnicodeString(" ") + command + " \"" + path + "\"";
}

}  // namespace zrk::svn
