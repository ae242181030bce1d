// Message catalogs, finding files along a variable, and splitting paths.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

#include "Checks.h"

namespace zrk::hostcheck {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms kExecutable = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

fs::path ProgramIn(const fs::path& folder) {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    std::error_code error;
    const bool runs = (entry.status(error).permissions() & kExecutable) != fs::perms::none;
    if (entry.is_regular_file(error) && runs) return entry.path();
  }
  return {};
}

// A program in one of the folders of PATH; empty when there is none. Folders that cannot be read are left
// out.
fs::path ProgramOnPath() {
  const char* const value = std::getenv("PATH");
  std::istringstream folders(value ? value : "");
  const char separator = fs::path::preferred_separator == '\\' ? ';' : ':';
  fs::path program;
  for (std::string folder; program.empty() && std::getline(folders, folder, separator);) {
    try {
      program = ProgramIn(CATUnicodeString(folder.c_str()).ConvertToWideChar());
    } catch (const fs::filesystem_error&) {
    }
  }
  return program;
}

}  // namespace

void CheckServices(Table& table, const HostFunctions& host) {
  table.Row("CATMsgCatalog: the default text", [&](Expectations& expect) {
    const CATUnicodeString parameter("file");
    const CATUnicodeString text("as /P1 it stands");
    const CATUnicodeString message = host.BuildMessage("ZRKHostCheck", "none", &parameter, 1, text);
    expect(message == text, text, " becomes ", message);
  });
  const fs::path program = ProgramOnPath();
  const char* const missing = program.empty() ? "a program along PATH" : nullptr;
  table.RowUnless(missing, "ZRKCorEnvVarManager: GetRuntimeFilePath", [&](Expectations& expect) {
    CATUnicodeString path("left over");
    const CATUnicodeString name(program.filename().wstring().c_str());
    const bool found = host.GetRuntimeFilePath("PATH", name, path);
    std::wstring wide = path.ConvertToWideChar();
    const bool isSlashed = wide.find(L'/') != std::wstring::npos;
    std::replace(wide.begin(), wide.end(), L'\\', L'/');
    std::error_code error;
    expect(found && !isSlashed && fs::equivalent(wide, program, error), name, " is found as ", path);
    const bool foundNone = host.GetRuntimeFilePath("PATH", "ZRKHostCheck.none", path);
    expect(!foundNone && path == "", "a file that does not exist is found as ", path);
  });
  table.Row("ZRKCorParserServices: SplitFilePath", [&](Expectations& expect) {
    const auto gives = [&](const char* path, const char* expectedFolder, const char* expectedName) {
      CATUnicodeString folder("left over");
      CATUnicodeString name("left over");
      host.SplitFilePath(path, folder, name);
      expect(folder == expectedFolder && name == expectedName, path, " is ", folder, " and ", name);
    };
    gives("C:\\wc\\car.1.CATPart", "C:\\wc", "car.1.CATPart");
    gives("C:\\car", "C:\\", "car");
    gives("\\car", "\\", "car");
    gives("car", "", "car");
  });
}

}  // namespace zrk::hostcheck
