#include "svn/WorkingCopyForm.h"

#include <optional>
#include <string_view>
#include <utility>
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

}  // namespace

const FolderForm& WorkingCopyForms::Of(const std::string& folder) {
  std::vector<std::string> undecided;
  FolderForm inherited;
  for (std::optional<std::string_view> above = folder; above; above = text::FolderAbove(*above)) {
    std::string current(*above);
    if (const auto known = known_.find(current); known != known_.end()) {
      inherited = known->second;
      break;
    }
    if (const std::optional<FolderForm> form = FormBeside(current)) {
      inherited = known_.emplace(std::move(current), *form).first->second;
      break;
    }
    undecided.push_back(std::move(current));
  }
  if (inherited.Kind == Form::Text) inherited = {};
  for (const std::string& below : undecided) known_.emplace(below, inherited);
  return known_.at(folder);
}

const FolderForm& WorkingCopyForms::OfDocument(const CATUnicodeString& path) {
  static const FolderForm nowhere;
  if (path.GetLengthInByte() == 0) return nowhere;
  return Of(std::string(text::FolderOf(text::View(path))));
}

Form FormOfDocument(const CATUnicodeString& path) {
  return WorkingCopyForms().OfDocument(path).Kind;
}

}  // namespace zrk::svn
