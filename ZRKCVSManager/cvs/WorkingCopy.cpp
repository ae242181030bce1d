#include "cvs/WorkingCopy.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "CATIDescendants.h"
#include "files/ClientFile.h"
#include "product/ProductDocument.h"
#include "svn/WorkingCopyForm.h"
#include "text/Path.h"
#include "text/Text.h"

namespace zrk::cvs {

using text::Replaced;
namespace {

std::string FolderOf(const CATUnicodeString& documentPath) {
  return std::string(text::FolderOf(text::View(documentPath)));
}

std::string WithoutLineFeeds(std::string_view lines) {
  std::string text(lines);
  std::erase(text, '\n');
  return text;
}

// True when the document lies in a CVS working copy.
bool ExamineForCVS(const CATUnicodeString& documentPath, const std::string& folder,
                   WorkingCopy& workingCopy) {
  const std::optional<files::Text> repository = files::ReadText(folder + "\\CVS\\Repository");
  if (!repository) return false;
  // No letter of two bytes holds a "/".
  const std::string repositoryPath = Replaced(WithoutLineFeeds(repository->View()), '/', '\\');
  const std::string path = documentPath.ConvertToChar();
  const std::size_t below = text::Find(path, repositoryPath);
  workingCopy.SandboxRoot = below == std::string::npos ? "" : path.substr(0, below).c_str();

  if (const std::optional<files::Text> root = files::ReadText(folder + "\\CVS\\Root", "r")) {
    workingCopy.CVSRoot = WithoutLineFeeds(root->View()).c_str();
  }
  return true;
}

// What one walk over a tree goes by.
struct Discovery {
  WorkingCopy& Found;
  svn::WorkingCopyForms Forms{};
  bool MetCVS = false;
  // Folder and root of the last working copy with a database.
  std::optional<std::pair<std::string, std::string>> LastDatabase{};

  void TakeDatabase() {
    Found.IsSVN = true;
    Found.SVNWorkingFolder = LastDatabase->first.c_str();
    Found.SVNDatabaseRoot = LastDatabase->second.c_str();
  }
};

// Examines one document; true when it ends its branch.
bool ExamineDocument(const CATUnicodeString& documentPath, Discovery& discovery) {
  WorkingCopy& found = discovery.Found;
  const std::string folder = FolderOf(documentPath);
  found.IsSVN = files::CanOpen(folder + "\\.svn\\entries");
  if (found.IsSVN) found.SVNWorkingFolder = folder.c_str();

  if (ExamineForCVS(documentPath, folder, found)) {
    discovery.MetCVS = true;
    return true;
  }
  const svn::FolderForm& form = discovery.Forms.Of(folder);
  if (form.Kind != svn::Form::Database) return false;
  discovery.LastDatabase = {folder, form.DatabaseRoot};
  discovery.TakeDatabase();
  return true;
}

}  // namespace

void DiscoverWorkingCopy(const CATIProduct_var& product, WorkingCopy& workingCopy) {
  Discovery discovery{workingCopy};
  // The products still to be examined, the next one last.
  std::vector<CATIProduct_var> pending{product};
  while (!pending.empty()) {
    const CATIProduct_var current = std::move(pending.back());
    pending.pop_back();
    const product::ProductDocument document = product::ReachDocument(current);
    if (document.Path.GetLengthInByte() == 0) continue;
    if (ExamineDocument(document.Path, discovery)) continue;

    const CATIDescendants_var descendants(current);
    if (!descendants) continue;
    CATListValCATISpecObject_var children;
    descendants->GetChildren("CATIProduct", children);
    for (int i = children.Size(); i >= 1; --i) pending.emplace_back(children[i]);
  }
  // Standard parts outside any working copy, as last documents, take nothing away.
  if (discovery.LastDatabase && !discovery.MetCVS && !workingCopy.IsSVN) discovery.TakeDatabase();
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
