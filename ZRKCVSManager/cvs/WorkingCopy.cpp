#include "cvs/WorkingCopy.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "CATIDescendants.h"
#include "files/TextFile.h"
#include "product/ProductDocument.h"
#include "text/Text.h"

namespace zrk::cvs {

using text::Replaced;
namespace {

std::string FolderOf(const CATUnicodeString& documentPath) {
  const std::string path = documentPath.ConvertToChar();
  return path.substr(0, path.rfind('\\'));
}

std::string WithoutLineFeeds(std::string_view lines) {
  std::string text(lines);
  std::erase(text, '\n');
  return text;
}

// Examines one document; true when it lies in a CVS working copy.
bool ExamineDocument(const CATUnicodeString& documentPath, WorkingCopy& workingCopy) {
  const std::string folder = FolderOf(documentPath);
  workingCopy.IsSVN = files::CanOpen(folder + "\\.svn\\entries");
  if (workingCopy.IsSVN) workingCopy.SVNWorkingFolder = folder.c_str();

  const std::optional<files::Text> repository = files::ReadText(folder + "\\CVS\\Repository");
  if (!repository) return false;
  const std::string repositoryPath = Replaced(WithoutLineFeeds(repository->View()), '/', '\\');
  const std::string path = documentPath.ConvertToChar();
  const std::size_t below = path.find(repositoryPath);
  workingCopy.SandboxRoot = below == std::string::npos ? "" : path.substr(0, below).c_str();

  if (const std::optional<files::Text> root = files::ReadText(folder + "\\CVS\\Root")) {
    workingCopy.CVSRoot = WithoutLineFeeds(root->View()).c_str();
  }
  return true;
}

}  // namespace

void DiscoverWorkingCopy(const CATIProduct_var& product, WorkingCopy& workingCopy) {
  // The products still to be examined, the next one last.
  std::vector<CATIProduct_var> pending{product};
  while (!pending.empty()) {
    const CATIProduct_var current = std::move(pending.back());
    pending.pop_back();
    const product::ProductDocument document = product::ReachDocument(current);
    if (document.Path.GetLengthInByte() == 0) continue;
    if (ExamineDocument(document.Path, workingCopy)) continue;

    const CATIDescendants_var descendants(current);
    if (!descendants) continue;
    CATListValCATISpecObject_var children;
    descendants->GetChildren("CATIProduct", children);
    for (int i = children.Size(); i >= 1; --i) pending.emplace_back(children[i]);
  }
}

bool CVSFolders::Hold(const CATUnicodeString& documentPath) {
  std::string folder = FolderOf(documentPath);
  if (folder != folder_) {
    isCVS_ = files::CanOpen(folder + "\\CVS\\Repository");
    folder_ = std::move(folder);
  }
  return isCVS_;
}

}  // namespace zrk::cvs
