#include "session/FolderSession.h"

#include <algorithm>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "session/WorkingCopyFolder.h"

namespace zrkhost {

namespace {

namespace fs = std::filesystem;

void ExpectRead(const fs::path& folder, const std::error_code& error) {
  if (error) throw CallError(Utf8FromPath(folder) + ": cannot be read: " + Utf8FromNative(error.message()));
}

std::vector<std::string> FilesBelow(const fs::path& folder) {
  std::vector<std::string> files;
  std::error_code error;
  // Folders behind symbolic links are not followed, so there is no way round in a circle.
  auto entry = fs::recursive_directory_iterator(folder, error);
  ExpectRead(folder, error);
  fs::path last;
  for (; entry != fs::recursive_directory_iterator(); entry.increment(error), ExpectRead(last, error)) {
    last = entry->path();
    std::error_code broken;
    if (entry->is_directory(broken) && IsClientsFolder(entry->path())) {
      entry.disable_recursion_pending();
      continue;
    }
    if (!entry->is_regular_file(broken)) continue;
    const auto file = Utf8FromPath(entry->path());
    if (file.find('\\') != std::string::npos)
      throw CallError(file + ": the host would take the \"\\\" in this name for a separator of folders");
    files.push_back(Utf8FromPath(entry->path().lexically_relative(folder)));
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string RootFile(const fs::path& folder, const std::vector<std::string>& files,
                     const std::optional<fs::path>& root) {
  if (root) {
    const auto name = Utf8FromPath((folder / *root).lexically_normal().lexically_relative(folder));
    if (std::binary_search(files.begin(), files.end(), name)) return name;
    throw CallError(Utf8FromPath(*root) + ": is not a file of the folder " + Utf8FromPath(folder));
  }
  const auto first = std::find_if(files.begin(), files.end(),
                                  [](const auto& file) { return file.find('/') == std::string::npos; });
  if (first != files.end()) return *first;
  throw CallError(Utf8FromPath(folder) + ": holds no file that could be the root; name one with --root");
}

}  // namespace

SessionDescription SessionOfFolder(const fs::path& folder, const std::optional<fs::path>& root) {
  const auto shown = Utf8FromPath(folder);
  std::error_code error;
  if (!fs::is_directory(folder, error)) throw CallError(shown + ": is not a folder");
  auto top = fs::absolute(folder).lexically_normal();
  if (!top.has_filename()) top = top.parent_path();

  const std::vector<std::string> files = FilesBelow(top);
  SessionDescription session;
  session.Root = RootFile(top, files, root);
  std::vector<ChildDescription> children;
  for (const auto& file : files) {
    ProductDescription product;
    product.Name = file;
    product.Document = (top / PathFromUtf8(file)).lexically_normal();
    session.Products.push_back(std::move(product));
    if (file != session.Root)
      children.push_back({.Name = file, .Reference = file, .Attributes = std::nullopt});
  }
  const auto rootProduct =
      std::find_if(session.Products.begin(), session.Products.end(),
                   [&session](const auto& product) { return product.Name == session.Root; });
  rootProduct->Children = std::move(children);
  return session;
}

}  // namespace zrkhost
