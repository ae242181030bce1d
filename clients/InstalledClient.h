#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Takes a piece of what the client writes, as it comes; false when nobody wants more.
using OutputSink = std::function<bool(std::string_view piece)>;

// The client of this system behind an adapter.
struct InstalledClient {
  // File name looked for along PATH, such as "cvs".
  std::string Program;
  // Name that the adapter goes by in its own messages.
  std::string AdapterName;
  // Debian package to name when the client is missing.
  std::string Package;
};

// Runs the client in this process's folder and gives the status to end with: the client's own, 128 and the
// signal's number when one ended it, 127 when there is no client.
//
// The client reads this process's standard input itself. All it writes, to either stream, goes to `output`
// as it comes, so that the two stay in the order in which the client wrote them, and a question is there
// before its answer is waited for.
int RunInstalledClient(const InstalledClient& client, const std::vector<std::string>& arguments,
                       const OutputSink& output);

// Puts the client in this process's place, for output that needs no change. Comes back only when that fails,
// with the status to end with: 127 when there is no client.
int BecomeInstalledClient(const InstalledClient& client, const std::vector<std::string>& arguments);

// Writes to this process's standard output; false when nobody reads it any more.
bool WriteToStandardOutput(std::string_view bytes);
