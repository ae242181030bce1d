#include "run/RefreshReason.h"

#include <algorithm>
#include <unordered_map>

#include "ZRKCorServices.h"
#include "base/Encoding.h"
#include "core/HostPath.h"
#include "session/CVSWorkingCopy.h"
#include "session/ProductFacts.h"
#include "session/WorkingCopyFolder.h"
#include "text/Characters.h"

namespace zrkhost {

namespace {

// What the library finds when it looks for working copies: from the top down, not below a product without a
// document, nor below one in a folder that ends the search.
struct Search {
  // As the host writes it; empty when there was no document to look beside.
  std::string FirstFolder;
  // The last folder that is a working copy, and what it is.
  std::string Found;
  WorkingCopyKind Kind = WorkingCopyKind::None;
};

Search LookForWorkingCopies(const std::vector<Place>& places, std::size_t first) {
  Search search;
  struct Folder {
    WorkingCopyKind Kind;
    bool EndsBranch;
  };
  std::unordered_map<std::string, Folder> folders;
  for (std::size_t i = first; i < places[first].End;) {
    const auto document = DocumentOf(places[i].Product);
    if (!document || document->empty()) {
      i = places[i].End;
      continue;
    }
    const auto folder = document->substr(0, standin::FindLastByCharacters(*document, '\\'));
    if (search.FirstFolder.empty()) search.FirstFolder = folder;
    auto known = folders.find(folder);
    if (known == folders.end()) {
      const auto path = standin::FilePath(folder + "\\");
      known = folders.emplace(folder, Folder{WorkingCopyKindOf(path), EndsSearch(path)}).first;
    }
    if (known->second.Kind != WorkingCopyKind::None) {
      search.Found = folder;
      search.Kind = known->second.Kind;
    }
    i = known->second.EndsBranch ? places[i].End : i + 1;
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

// What the library goes by: what the manager found from its own product and, when that is not enough to run
// the client of CVS, what it finds from the product that it is given.
const Search& Decisive(const Search& own, const Search& given) {
  if (own.Kind == WorkingCopyKind::Subversion) return own;
  if (own.Kind == WorkingCopyKind::None) return given;
  return CVSWorkingCopyOf(own.Found).IsWhole() || given.Kind != WorkingCopyKind::CVS ? own : given;
}

// Why a client that was run where `own` was found had nothing to say of `given`; absent when both are of one
// working copy.
std::optional<std::string> ReasonOfAnotherPlace(const Search& own, const Search& given) {
  if (given.FirstFolder.empty()) return "the product has no document that the client could be asked about";
  if (given.Kind == WorkingCopyKind::None) {
    return "no working copy beside any document of the product; the first folder looked at is " +
           Utf8FromNative(given.FirstFolder);
  }
  if (given.Kind == own.Kind && CVSWorkingCopyOf(given.Found) == CVSWorkingCopyOf(own.Found)) {
    return std::nullopt;
  }
  return "the manager of the root asks about the working copy " + Utf8FromNative(own.Found) +
         ", and the product is in another one, " + Utf8FromNative(given.Found);
}

std::string Reason(const Search& own, const Search& given, const std::vector<LaunchEvent>& launches) {
  const Search& search = Decisive(own, given);
  if (search.Kind == WorkingCopyKind::None) return WithoutWorkingCopy(own.FirstFolder.empty() ? given : own);
  const bool isCVS = search.Kind == WorkingCopyKind::CVS;
  const std::string client = isCVS ? "cvs.exe" : "svn.exe";
  if (!isCVS && &search != &own) {
    return client + " was not started for the working copy " + Utf8FromNative(search.Found) +
           ": in Subversion the manager of the root refreshes the tree of the root, and found none there";
  }
  if (!IsOnPath(client.c_str())) return NotOnPath(client, search);
  const auto failed = std::find_if(launches.begin(), launches.end(),
                                   [](const LaunchEvent& launch) { return !launch.Started; });
  if (failed != launches.end()) {
    // Only the client of Subversion is launched without being looked for before.
    if (failed->Program.empty()) return NotOnPath("svn.exe", search);
    return Utf8FromWide(failed->Program) + " could not be started in " + Utf8FromWide(failed->Folder);
  }
  if (!AttributeClassOfSession()) return "the session has no attribute class ZRKCVS to write to";
  if (isCVS && &search == &own) {
    if (const auto reason = ReasonOfAnotherPlace(own, given)) return *reason;
  }
  if (!launches.empty()) return "the client reported no document of the tree; --verbose shows how it was run";
  if (!LaunchesAreKnown()) return client + " could not be started, or reported no document of the tree";
  return client + " was not started for the working copy " + Utf8FromNative(search.Found) +
         (isCVS ? ": it has no CVS\\Root, or its path does not hold what stands in CVS\\Repository"
                : ": another document of the tree decided otherwise");
}

}  // namespace

std::optional<std::string> WhyNothingIsShown(const HostSession& session, const Refresh& refresh,
                                             const std::vector<LaunchEvent>& launches) {
  const auto& places = session.Places();
  const auto position = [&places](const Place* place) {
    return static_cast<std::size_t>(place - places.data());
  };
  const bool started =
      !LaunchesAreKnown() ||
      std::any_of(launches.begin(), launches.end(), [](const LaunchEvent& launch) { return launch.Started; });
  const auto given = position(refresh.Given);
  // What was given is within the tree of who was asked, and so in whichever the refresh is about.
  if (started && CarriesAttributes(places, given)) return std::nullopt;
  const auto own = LookForWorkingCopies(places, position(refresh.Asked));
  // In Subversion a manager brings its own product's tree up to date, whatever it is given.
  const auto tree = own.Kind == WorkingCopyKind::Subversion ? position(refresh.Asked) : given;
  if (started && tree != given && CarriesAttributes(places, tree)) return std::nullopt;
  return Reason(own, LookForWorkingCopies(places, tree), launches);
}

}  // namespace zrkhost
