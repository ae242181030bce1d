#include "svn/EntriesFile.h"

#include <string>

#include "files/ClientFile.h"
#include "svn/EntriesText.h"
#include "text/Path.h"

namespace zrk::svn {

HRESULT ReadSVNEntry(const char* path, ZRKCVSStatus& record) {
  const auto entries = files::ReadText(std::string(text::FolderOf(path)) + "\\.svn\\entries");
  if (!entries) return E_FAIL;
  ReadEntry(entries->View(), text::NameOf(path), record);
  return S_OK;
}

}  // namespace zrk::svn
