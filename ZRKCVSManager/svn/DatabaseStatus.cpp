#include "svn/DatabaseStatus.h"

#include <map>
#include <optional>
#include <string>

#include "files/FileMode.h"
#include "product/ProductTree.h"
#include "product/StatusInstance.h"
#include "svn/DatabaseClient.h"
#include "svn/ProductStatus.h"
#include "svn/StatusReaders.h"
#include "svn/WorkingCopyForm.h"
#include "text/Path.h"
#include "text/Text.h"
#include "tools/RunClock.h"

namespace zrk::svn {
namespace {

bool IsAtOrBelow(std::string_view folder, std::string_view above) {
  return folder.starts_with(above) && (folder.size() == above.size() || folder[above.size()] == '\\');
}

// The deepest folder that holds both.
std::string CommonFolder(std::string_view one, std::string_view other) {
  while (!IsAtOrBelow(other, one)) one = text::FolderOf(one);
  return std::string(one);
}

std::string ExistingFolder(std::string_view folder, std::string_view root) {
  while (folder != root && !files::IsFolder(std::string(folder))) folder = text::FolderOf(folder);
  return std::string(folder);
}

struct WorkingCopy {
  // The deepest folder that holds all its documents in the tree.
  std::string Folder;
  // What its own report says. That of a working copy around it may name its files too, and knows less of
  // them.
  ReportedFiles Files;
};

using WorkingCopies = std::map<std::string, WorkingCopy>;

// By their roots, without the reports.
WorkingCopies CollectWorkingCopies(const CATBaseUnknown_var& product, WorkingCopyForms& forms) {
  WorkingCopies copies;
  product::WalkProductTree(product, [&](const CATBaseUnknown_var& object) {
    const product::ProductDocument document = product::ReachDocument(object);
    const FolderForm& form = forms.OfDocument(document.Path);
    if (form.Kind == Form::Database) {
      const std::string_view folder = text::FolderOf(text::View(document.Path));
      const auto [copy, isNew] = copies.try_emplace(form.DatabaseRoot);
      copy->second.Folder = isNew ? std::string(folder) : CommonFolder(copy->second.Folder, folder);
    }
    return document.Exists();
  });
  return copies;
}

// What is reported of a document that lies in a folder of that form; null when nothing is.
const ReportedFile* FindReported(const WorkingCopies& copies, const FolderForm& form,
                                 const CATUnicodeString& path) {
  const auto copy = copies.find(form.DatabaseRoot);
  if (form.Kind != Form::Database || copy == copies.end()) return nullptr;
  const auto file = copy->second.Files.find(std::string(text::View(path)));
  return file == copy->second.Files.end() ? nullptr : &file->second;
}

// The file of that name in the report of one file, which stands under a path of the client's own writing.
const ReportedFile* FindByName(const ReportedFiles& files, std::string_view name) {
  for (const auto& [path, file] : files) {
    if (text::NameOf(path) == name) return &file;
  }
  return nullptr;
}

ZRKCVSStatus RecordOf(const ReportedFile* file) {
  ZRKCVSStatus record;
  if (file && file->IsVersioned()) FillRecord(*file, record);
  return record;
}

}  // namespace

std::int32_t RefreshDatabaseTree(const SVNContext& context, const CATBaseUnknown_var& product,
                                 SVNTimes& times) {
  WorkingCopyForms forms;
  WorkingCopies copies = CollectWorkingCopies(product, forms);
  for (auto& [root, copy] : copies) {
    ReadStatusOfFolder(context, ExistingFolder(copy.Folder, root), times, copy.Files);
  }

  const tools::RunClock clock;
  // Those of the text form are asked about one by one, within the walk.
  SVNTimes ofTextForm;
  product::WalkProductTree(product, [&](const CATBaseUnknown_var& object) {
    const product::ProductDocument document = product::ReachDocumentOrClear(object, context.AttributeClass);
    if (!document.Exists()) return false;
    const FolderForm& form = forms.OfDocument(document.Path);
    if (form.Kind == Form::Text) {
      RefreshInTree(context, object, document.Path, ofTextForm);
    } else {
      const ZRKCVSStatus record = RecordOf(FindReported(copies, form, document.Path));
      ShowOnProduct(context, object, record, TreeComment(record));
    }
    return true;
  });
  times.StatusCheck += ofTextForm.StatusCheck;
  times.XMLParsing += ofTextForm.XMLParsing;
  times.Attributing += static_cast<double>(clock.Elapsed()) - ofTextForm.StatusCheck - ofTextForm.XMLParsing;
  return 0;
}

std::int32_t RefreshDatabaseDocument(const SVNContext& context, const CATBaseUnknown_var& product) {
  const product::ProductDocument document = product::ReachDocumentOrClear(product, context.AttributeClass);
  if (!document.Exists()) return 0;
  const std::string_view path = text::View(document.Path);
  SVNTimes notCounted;
  const ReportedFiles files = ReadStatusOfFile(context, path, notCounted);
  const ZRKCVSStatus record = RecordOf(FindByName(files, text::NameOf(path)));
  ShowOnProduct(context, product, record, SingleComment(record));
  return 0;
}

tools::Ticks QueryDatabaseFile(const SVNContext& context, const CATUnicodeString& path,
                               ZRKCVSStatus& record) {
  const std::string name(text::NameOf(text::View(path)));
  SVNTimes times;
  const ReportedFiles files = ReadStatusOfFile(context, text::View(path), times);
  if (const ReportedFile* const file = FindByName(files, name)) {
    record.File = name.c_str();
    record.Status = file->Item.c_str();
    if (file->IsVersioned()) FillRecord(*file, record);
  }
  return static_cast<tools::Ticks>(times.StatusCheck);
}

}  // namespace zrk::svn
