#pragma once

#include <windows.h>

#include "CATUnicodeString.h"
#include "tools/Pipe.h"

// Running the version-control clients as hidden child processes.
namespace zrk::tools {

// What a run works with. It belongs to the manager; one context carries one run at a time.
struct ToolContext {
  // svn.exe runs, with the caller's arguments alone; else cvs.exe, with the CVS root in front of them.
  bool IsSVN;
  const CATUnicodeString& CVSRoot;
  const CATUnicodeString& CVSExePath;
  const CATUnicodeString& SVNExePath;
  // Standard output and error of the client come through one pipe, its standard input through the other.
  Pipe& ChildOutput;
  Pipe& ChildInput;
};

// Runs the client with the arguments in the folder, waits for the end of its output and appends that to
// `output`. The reading also ends, with the client still running, once the whole of `output` holds
// "revert changes": the client then waits for an answer (AnswerTool); and when the client writes no byte.
//
// Nothing runs in CVS mode without a path of cvs.exe. Failures are reported on the debugger channel alone and
// leave `output` as it is. The client's exit status is not known. Afterwards the write end of the
// client's standard input is open, and after a question or an empty write also the read end of its output,
// until FinishRun
// or the next run.
void RunTool(const ToolContext& context, const CATUnicodeString& arguments,
             const CATUnicodeString& workingFolder, CATUnicodeString& output);

// Answers the client that waits after RunTool with the bytes of `answer` and its closing 0, and finishes
// the run, so that what the client does upon the answer is done. A null answer is none.
void AnswerTool(const ToolContext& context, const char* answer);

// Ends the last run, if there was one: the client sees the end of its input, and what it still writes is
// read to the end and dropped, however long that takes. Nothing is read of a client that was not started
// or whose output cannot end. No pipe is open afterwards.
void FinishRun(const ToolContext& context);

// Finishes the last run when an operation is over, whatever way it ends.
class RunScope {
public:
  explicit RunScope(const ToolContext& context) : context_(context) {}
  RunScope(const RunScope&) = delete;
  RunScope& operator=(const RunScope&) = delete;
  ~RunScope() { FinishRun(context_); }

private:
  ToolContext context_;
};

}  // namespace zrk::tools
