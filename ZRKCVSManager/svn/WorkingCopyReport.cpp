#include "svn/WorkingCopyReport.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "ZRKAttModelerServices.h"
#include "ZRKAttPackageBaseServices.h"
#include "text/Text.h"

namespace zrk::svn {
namespace {

struct Lock {
  std::string Token;
  CATUnicodeString Owner;
  CATUnicodeString Comment;
};

// The report without what the client wrote around it; nothing when a part of it is missing.
std::optional<std::string> WithoutWarnings(std::string_view report) {
  constexpr std::string_view kEnd = "</status>";
  const std::size_t start = report.find("<?xml");
  const std::size_t end = report.rfind(kEnd);
  if (start == std::string_view::npos || end == std::string_view::npos || end < start) return std::nullopt;
  return std::string(report.substr(start, end + kEnd.size() - start));
}

// Null when there is none.
CATIDOMElement_var FirstBelow(const CATIDOMElement_var& element, const char* name) {
  const CATIDOMNodeList_var found = element->GetElementsByTagName(name);
  if (!found || found->GetLength() == 0) return nullptr;
  return found->Item(0);
}

int CountBelow(const CATIDOMElement_var& element, const char* name) {
  const CATIDOMNodeList_var found = element->GetElementsByTagName(name);
  return found ? found->GetLength() : 0;
}

CATUnicodeString TextOfFirst(const CATIDOMElement_var& element, const char* name) {
  CATUnicodeString text;
  const CATIDOMNode_var first = FirstBelow(element, name);
  if (first) ZRKAttPackageBaseServices::GetNodeText(first, text);
  return text;
}

// The lock of `<wc-status>` or `<repos-status>`; a null element holds none.
std::optional<Lock> LockOf(const CATIDOMElement_var& status) {
  if (!status) return std::nullopt;
  const CATIDOMElement_var element = FirstBelow(status, "lock");
  if (!element) return std::nullopt;
  return Lock{TextOfFirst(element, "token").ConvertToChar(), TextOfFirst(element, "owner"),
              TextOfFirst(element, "comment")};
}

void ShowLock(const Lock& lock, bool isHere, ReportedFile& file) {
  file.IsLockedHere = isHere;
  file.IsLockedByOther = !isHere;
  file.LockOwner = lock.Owner;
  file.LockComment = lock.Comment;
}

void DecideLock(const std::optional<Lock>& own, const std::optional<Lock>& others, Repository repository,
                ReportedFile& file) {
  if (repository == Repository::NotAsked) {
    if (own) ShowLock(*own, true, file);
  } else if (others) {
    const bool isHere = own && !own->Token.empty() && own->Token == others->Token;
    ShowLock(isHere ? *own : *others, isHere, file);
  }
}

ReportedFile ReadFile(const CATIDOMElement_var& entry, const CATIDOMElement_var& status,
                      Repository repository) {
  ReportedFile file;
  file.Item = status->GetAttribute("item").ConvertToChar();
  if (const CATIDOMElement_var commit = FirstBelow(status, "commit")) {
    file.Revision = commit->GetAttribute("revision").ConvertToChar();
  }
  DecideLock(LockOf(status), LockOf(FirstBelow(entry, "repos-status")), repository, file);
  return file;
}

}  // namespace

bool ReportedFile::IsVersioned() const {
  constexpr std::array<std::string_view, 5> kNotVersioned = {"", "unversioned", "ignored", "external",
                                                             "none"};
  return std::find(kNotVersioned.begin(), kNotVersioned.end(), Item) == kNotVersioned.end();
}

bool ReadWorkingCopyReport(const CATUnicodeString& report, Repository repository, std::string_view folder,
                           ReportedFiles& files) {
  const std::optional<std::string> text = WithoutWarnings(text::View(report));
  if (!text) return false;
  CATIDOMDocument_var document;
  ZRKAttModelerServices::CreateXMLDOMFromString(text->c_str(), document);
  if (!document) return false;
  const CATIDOMElement_var root = document->GetDocumentElement();
  if (!root) return false;
  const CATIDOMNodeList_var entries = root->GetElementsByTagName("entry");
  if (!entries) return true;
  for (int i = 0; i < entries->GetLength(); ++i) {
    const CATIDOMElement_var entry(entries->Item(i));
    if (!entry) continue;
    // Stepping over those within another keeps the work linear, however deep they stand.
    const int within = CountBelow(entry, "entry");
    if (within > 0) {
      i += within;
      continue;
    }
    const CATUnicodeString path = entry->GetAttribute("path");
    const CATIDOMElement_var status = FirstBelow(entry, "wc-status");
    if (path.GetLengthInByte() == 0 || !status) continue;
    std::string key(folder);
    key += text::Replaced(text::View(path), '/', '\\');
    files.try_emplace(std::move(key), ReadFile(entry, status, repository));
  }
  return true;
}

void FillRecord(const ReportedFile& file, ZRKCVSStatus& record) {
  record.WorkingRevision = file.Revision.c_str();
  record.RevisionNumber = std::atoi(file.Revision.c_str());
  record.IsVersioned = 1;
  record.IsInEntries = 1;
  record.IsLockedHere = file.IsLockedHere ? 1 : 0;
  record.IsLockedByOther = file.IsLockedByOther ? 1 : 0;
  record.LockOwner = file.LockOwner;
  record.AuxText = file.LockComment;
}

}  // namespace zrk::svn
