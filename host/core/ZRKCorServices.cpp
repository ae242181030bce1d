#include "ZRKCorServices.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/HostPath.h"
#include "core/RuntimeFiles.h"
#include "text/Characters.h"

bool ZRKCorEnvVarManager::GetRuntimeFilePath(const char* variable, const CATUnicodeString& file,
                                             CATUnicodeString& path) {
  std::string found;
  const char* value = variable ? std::getenv(variable) : nullptr;
  // A name with a root would turn the look-up away from the folder it is made in.
  const std::filesystem::path name = standin::FilePath(file.ConvertToChar()).relative_path();
  for (std::string_view rest = value ? value : ""; found.empty() && !rest.empty();) {
    const std::size_t end = rest.find(standin::kFolderListSeparator);
    const std::string_view folder = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    if (folder.empty()) continue;
    std::error_code failure;
    const std::filesystem::path candidate =
        std::filesystem::absolute(standin::FilePath(folder) / name, failure);
    if (!failure && standin::IsRunnableFile(candidate)) found = standin::HostPath(candidate);
  }
  path = found.c_str();
  return !found.empty();
}

void ZRKCorParserServices::SplitFilePath(const CATUnicodeString& path, CATUnicodeString& folder,
                                         CATUnicodeString& name) {
  // Copied first, as a caller may get a part back in the very text it passed.
  const std::string whole = path.ConvertToChar();
  const std::size_t separator = standin::FindLastByCharacters(whole, '\\');
  if (separator == std::string::npos) {
    folder = "";
    name = whole.c_str();
    return;
  }
  // The name of a root is its separator: "C:" alone would be the folder that drive was last used in.
  const bool isRoot = separator == 0 || whole[separator - 1] == ':';
  folder = whole.substr(0, isRoot ? separator + 1 : separator).c_str();
  name = whole.substr(separator + 1).c_str();
}
