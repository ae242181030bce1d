#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

// One run of a scripted client.
struct ClientRun {
  // "cvs.exe" or "svn.exe".
  std::string Program;
  // The working folder as the host writes it, without a closing "\".
  std::string Folder;
  std::vector<std::string> Arguments;
  // All it read from standard input, with what ended each answer.
  std::string Input;

  // The arguments with a blank between them.
  std::string Joined() const;
};

// What a client does when the arguments of a run, joined by blanks, hold a text. The actions are played in
// the order in which they are given. A relative path is relative to the client's working folder.
class ScriptedRule {
public:
  ScriptedRule& Out(std::string_view text);
  ScriptedRule& Error(std::string_view text);
  ScriptedRule& Repeat(std::uint64_t count, std::string_view text);
  // Writes the bytes of a file to standard output.
  ScriptedRule& File(const std::filesystem::path& path);

  // Reads standard input up to a 0, a line end or the end.
  ScriptedRule& Read();
  ScriptedRule& ReadAll();

  ScriptedRule& MakeWritable(const std::filesystem::path& path);
  ScriptedRule& MakeReadOnly(const std::filesystem::path& path);
  ScriptedRule& Store(const std::filesystem::path& path, std::string_view bytes);
  ScriptedRule& Remove(const std::filesystem::path& path);

  // Closes standard output and standard error, and goes on.
  ScriptedRule& CloseOutput();
  ScriptedRule& CloseInput();
  // Waits until standard input ends.
  ScriptedRule& Hang();
  // Waits for a minute: for a client that is killed or that nobody should wait for.
  ScriptedRule& HangForever();
  ScriptedRule& Exit(int status);
  // Ends as a fault would.
  ScriptedRule& Crash();

  // Writes what console it is attached to: "own console, no window" or, as always on Linux, "no console".
  ScriptedRule& TellConsole();

  // Only for the next run that fits; later ones go on to the rules behind.
  ScriptedRule& Once();
  // Only for that client, such as "svn.exe".
  ScriptedRule& Program(std::string_view name);

private:
  friend class ScriptedClient;
  explicit ScriptedRule(std::filesystem::path script) : script_(std::move(script)) {}
  ScriptedRule& Append(std::string_view line);

  std::filesystem::path script_;
};

enum class InstalledClients { Both, CVSOnly, SVNOnly, None };

// Puts the scripted clients into PATH, in front of all else, with a script and a log of their own. With
// less than both installed PATH holds nothing but the folder of those that are.
//
// A client without a rule that fits prints nothing and ends with 0. The first rule that fits is played.
class ScriptedClient {
public:
  explicit ScriptedClient(InstalledClients installed = InstalledClients::Both);
  ScriptedClient(const ScriptedClient&) = delete;
  ScriptedClient& operator=(const ScriptedClient&) = delete;

  // A new rule behind those there are; add its actions before the next rule is begun.
  ScriptedRule When(std::string_view arguments);
  // Every run; for the last rule.
  ScriptedRule Otherwise() { return When(""); }
  void ClearRules();

  // All runs since the start or the last ClearRuns, in the order in which they began. What a client reads
  // is there when it goes on to its next action.
  std::vector<ClientRun> Runs() const;
  void ClearRuns();

  // Path of "cvs.exe" or "svn.exe" as the host writes it.
  std::string HostPath(std::string_view program) const;

private:
  TemporaryFolder folder_;
  std::filesystem::path clients_;
  std::optional<EnvironmentVariable> path_;
  EnvironmentVariable script_;
  EnvironmentVariable log_;
};
