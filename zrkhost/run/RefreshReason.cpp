#include "run/RefreshReason.h"

#include <algorithm>
#include <unordered_map>

#include "ZRKCorServices.h"
#include "base/Encoding.h"
#include "core/HostPath.h"
#include "session/ProductFacts.h"
#include "session/WorkingCopyFolder.h"

namespace zrkhost {

namespace {

// What the library finds when it looks for working copies: from the top down, not below a product without a
// document, nor below one in a folder of CVS.
struct Search {
  // As the host writes it; empty when there was no document to look beside.
  std::string FirstFolder;
  // The first folder that is a working copy, and what it is.
  std::string Found;
  WorkingCopyKind Kind = WorkingCopyKind::None;
};

Search LookForWorkingCopies(const std::vector<Place>& places, std::size_t first) {
  Search search;
  std::unordered_map<std::string, WorkingCopyKind> kinds;
  for (std::size_t i = first; i < places[first].End && search.Found.empty();) {
    const auto document = DocumentOf(places[i].Product);
    if (!document || document->empty()) {
      i = places[i].End;
      continue;
    }
    const auto folder = document->substr(0, document->rfind('\\'));
    if (search.FirstFolder.empty()) search.FirstFolder = folder;
    const auto [kind, isNew] = kinds.try_emplace(folder, WorkingCopyKind::None);
    if (isNew) kind->second = WorkingCopyKindOf(standin::FilePath(folder + "\\"));
    if (kind->second != WorkingCopyKind::None) {
      search.Found = folder;
      search.Kind = kind->second;
    }
    ++i;
  }
  return search;
}

bool IsOnPath(const char* client) {
  CATUnicodeString path;
  return ZRKCorEnvVarManager::GetRuntimeFilePath("PATH", client, path);
}

bool CarriesAttributes(const std::vector<Place>& places, std::size_t first) {
  return std::any_of(places.begin() + static_cast<std::ptrdiff_t>(first),
                     places.begin() + static_cast<std::ptrdiff_t>(places[first].End),
                     [](const Place& place) { return bool(AttributeInstanceOf(place.Product)); });
}

std::string WithoutWorkingCopy(const Search& search) {
  if (search.FirstFolder.empty()) return "the product has no document, so no folder was looked at";
  auto reason = "no working copy beside any document; the first folder looked at is " +
                Utf8FromNative(search.FirstFolder);
  if (!IsOnPath("cvs.exe") && !IsOnPath("svn.exe")) {
    reason += "; no client on PATH either (looked for: cvs.exe, svn.exe)";
  }
  return reason;
}

std::string NotOnPath(const std::string& client, const Search& search) {
  return "no " + client + " on PATH, the client of the working copy " + Utf8FromNative(search.Found) +
         " (looked for: cvs.exe, svn.exe)";
}

std::string Reason(const Search& search, const std::vector<LaunchEvent>& launches) {
  if (search.Kind == WorkingCopyKind::None) return WithoutWorkingCopy(search);
  const bool isCVS = search.Kind == WorkingCopyKind::CVS;
  const std::string client = isCVS ? "cvs.exe" : "svn.exe";
  if (!IsOnPath(client.c_str())) return NotOnPath(client, search);
  const auto failed = std::find_if(launches.begin(), launches.end(),
                                   [](const LaunchEvent& launch) { return !launch.Started; });
  if (failed != launches.end()) {
    // Only the client of Subversion is launched without being looked for before.
    if (failed->Program.empty()) return NotOnPath("svn.exe", search);
    return Utf8FromWide(failed->Program) + " could not be started in " + Utf8FromWide(failed->Folder);
  }
  if (!AttributeClassOfSession()) return "the session has no attribute class ZRKCVS to write to";
  if (!launches.empty()) return "the client told of no document of the tree; --verbose shows how it was run";
  if (!LaunchesAreKnown()) return client + " could not be started, or told of no document of the tree";
  return client + " was not started for the working copy " + Utf8FromNative(search.Found) +
         (isCVS ? ": it has no CVS\\Root, or its path does not hold what stands in CVS\\Repository"
                : ": another document of the tree decided otherwise");
}

}  // namespace

std::optional<std::string> WhyNothingIsShown(const HostSession& session, const Place& place,
                                             const std::vector<LaunchEvent>& launches) {
  const auto& places = session.Places();
  const auto first = static_cast<std::size_t>(&place - places.data());
  const bool started =
      !LaunchesAreKnown() ||
      std::any_of(launches.begin(), launches.end(), [](const LaunchEvent& launch) { return launch.Started; });
  if (started && CarriesAttributes(places, first)) return std::nullopt;
  return Reason(LookForWorkingCopies(places, first), launches);
}

}  // namespace zrkhost
