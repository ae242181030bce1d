#include "svn/EntriesOnDisk.h"

#include <string>
#include <string_view>

#include "files/TextFile.h"
#include "svn/EntriesFile.h"

namespace zrk::svn {

HRESULT ReadSVNEntry(const char* path, ZRKCVSStatus& record) {
  const std::string_view whole = path;
  const std::size_t separator = whole.rfind('\\');
  const std::string_view folder = whole.substr(0, separator);
  const std::string_view name = separator == std::string_view::npos ? whole : whole.substr(separator + 1);
  const auto entries = files::ReadText(std::string(folder) + "\\.svn\\entries");
  if (!entries) return E_FAIL;
  ReadEntry(entries->View(), name, record);
  return S_OK;
}

}  // namespace zrk::svn
