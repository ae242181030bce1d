#include "call/OutputCheck.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "call/CommandSource.h"
#include "call/Surroundings.h"
#include "session/WorkingCopyFolder.h"
#include "terminal/StandardStreams.h"

namespace zrkhost {

namespace {

namespace fs = std::filesystem;

constexpr const char* kInput = "what the call reads";

struct Output {
  fs::path File;
  std::string What;
};

std::vector<Output> OutputsOf(const Options& options) {
  std::vector<Output> outputs;
  if (options.Report) outputs.push_back({PathFromNative(*options.Report), "report"});
  if (options.Page) outputs.push_back({PathFromNative(*options.Page), "page"});
  return outputs;
}

// Also when neither is there yet.
bool AreOneFile(const fs::path& one, const fs::path& other) {
  std::error_code error;
  if (fs::is_regular_file(one, error)) return fs::equivalent(one, other, error);
  if (fs::exists(one, error)) return false;
  const auto place = fs::weakly_canonical(one, error);
  return !error && place == fs::weakly_canonical(other, error);
}

[[noreturn]] void Refuse(const Output& output, const std::string& role) {
  throw CallError(Utf8FromPath(output.File) + ": the " + output.What + " would overwrite " + role);
}

void CheckOutput(const Output& output, const fs::path& other, const std::string& role) {
  if (AreOneFile(output.File, other)) Refuse(output, role);
}

std::vector<fs::path> InputsOf(const Options& options) {
  std::vector<fs::path> inputs;
  if (options.SessionFile) inputs.push_back(PathFromNative(*options.SessionFile));
  if (options.CommandFile && *options.CommandFile != "-") {
    inputs.push_back(PathFromNative(*options.CommandFile));
  }
  inputs.push_back(options.Plugin ? PathFromNative(*options.Plugin) : DefaultPlugin());
  const fs::path clients = options.Clients ? PathFromNative(*options.Clients) : DefaultClients();
  if (!clients.empty()) {
    for (const char* client : {"cvs.exe", "svn.exe"}) inputs.push_back(clients / client);
  }
  return inputs;
}

bool IsKeptByAClient(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return false;
  for (fs::path current = fs::canonical(file, error); current != current.parent_path();) {
    current = current.parent_path();
    if (IsClientsFolder(current)) return true;
  }
  return false;
}

}  // namespace

void CheckOutputs(const Options& options) {
  const auto outputs = OutputsOf(options);
  for (const auto& output : outputs) {
    for (const auto& input : InputsOf(options)) CheckOutput(output, input, kInput);
    if (ReadsStandardInput(options) && IsStandardInput(output.File)) Refuse(output, kInput);
    if (IsStandardOutput(output.File)) Refuse(output, "standard output");
    if (IsKeptByAClient(output.File)) Refuse(output, "what a client keeps of a working copy");
  }
  if (outputs.size() == 2) CheckOutput(outputs[1], outputs[0].File, "the report");
}

void CheckOutputs(const Options& options, const SessionDescription& description) {
  for (const auto& output : OutputsOf(options)) {
    std::error_code error;
    if (!fs::is_regular_file(output.File, error)) continue;
    for (const auto& product : description.Products) {
      if (product.Document) CheckOutput(output, *product.Document, "a document of the session");
    }
  }
}

}  // namespace zrkhost
