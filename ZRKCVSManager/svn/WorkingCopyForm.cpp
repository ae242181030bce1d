#include "svn/WorkingCopyForm.h"

#include <optional>
#include <string_view>
#include <vector>

#include "files/ClientFile.h"
#include "text/Path.h"
#include "text/Text.h"

namespace zrk::svn {
namespace {

// What the folder itself says; nothing when it leaves the answer to those above.
std::optional<FolderForm> FormBeside(const std::string& folder) {
  if (files::HoldsSeveralLines(folder + "\\.svn\\entries")) return FolderForm{Form::Text, {}};
  if (files::CanOpen(folder + "\\CVS\\Repository")) return FolderForm{};
  if (files::CanOpen(folder + "\\.svn\\wc.db")) return FolderForm{Form::Database, folder};
  return std::nullopt;
}

// Nothing above a drive, which has no separator any more, and above `\\server\share`.
std::optional<std::string> FolderAbove(const std::string& folder) {
  const std::string_view above = text::FolderOf(folder);
  if (above == folder || text::FolderOf(above) == "\\") return std::nullopt;
  return std::string(above);
}

}  // namespace

const FolderForm& WorkingCopyForms::Of(const std::string& folder) {
  std::vector<std::string> undecided;
  FolderForm inherited;
  for (std::optional<std::string> current = folder; current; current = FolderAbove(*current)) {
    if (const auto known = known_.find(*current); known != known_.end()) {
      inherited = known->second;
      break;
    }
    if (const std::optional<FolderForm> form = FormBeside(*current)) {
      inherited = known_.emplace(*current, *form).first->second;
      break;
    }
    undecided.push_back(*current);
  }
  if (inherited.Kind == Form::Text) inherited = {};
  for (const std::string& below : undecided) known_.emplace(below, inherited);
  return known_.at(folder);
}

Form FormOfDocument(const CATUnicodeString& documentPath) {
  return WorkingCopyForms().Of(std::string(text::FolderOf(text::View(documentPath)))).Kind;
}

}  // namespace zrk::svn
