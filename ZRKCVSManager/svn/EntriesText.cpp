#include "svn/EntriesText.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>

namespace zrk::svn {
namespace {

constexpr int kRevisionDistance = 9;
constexpr int kLockTokenDistance = 26;
constexpr std::string_view kLockTokenMark = "opaquelocktoken";

// The text from the line after the first that is exactly `name`; nothing when there is none. A large
// folder has millions of characters of entries: the search skips through them instead of splitting them
// into lines.
std::optional<std::string_view> TextBehindLine(std::string_view entries, std::string_view name) {
  if (name.find('\n') != std::string_view::npos) return std::nullopt;
  const std::string line = std::string(name) + '\n';
  if (entries.starts_with(line)) return entries.substr(line.size());
  const std::string lineAfterAnother = '\n' + line;
  const std::boyer_moore_horspool_searcher searcher(lineAfterAnother.begin(), lineAfterAnother.end());
  const auto found = std::search(entries.begin(), entries.end(), searcher);
  if (found == entries.end()) return std::nullopt;
  return entries.substr(static_cast<std::size_t>(found - entries.begin()) + lineAfterAnother.size());
}

// Skips lines at the front of `text`; nothing when it has fewer.
std::optional<std::string_view> SkipLines(std::string_view text, int count) {
  for (; count > 0; --count) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    text.remove_prefix(end + 1);
  }
  return text;
}

// The first line of `text`; nothing when there is no complete one.
std::optional<std::string> FirstLine(std::string_view text) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  return std::string(text.substr(0, end));
}

}  // namespace

void ReadEntry(std::string_view entries, std::string_view name, ZRKCVSStatus& record) {
  const auto behindName = TextBehindLine(entries, name);
  if (!behindName) return;
  record.IsInEntries = 1;
  record.IsVersioned = 1;

  const auto fromRevision = SkipLines(*behindName, kRevisionDistance - 1);
  if (!fromRevision) return;
  const auto revision = FirstLine(*fromRevision);
  if (!revision) return;
  record.RevisionNumber = std::atoi(revision->c_str());
  record.WorkingRevision = revision->c_str();

  const auto fromToken = SkipLines(*fromRevision, kLockTokenDistance - kRevisionDistance);
  if (!fromToken) return;
  const auto token = FirstLine(*fromToken);
  if (!token || token->find(kLockTokenMark) == std::string::npos) return;
  record.IsLockedHere = 1;
  const auto fromOwner = SkipLines(*fromToken, 1);
  record.LockOwner = FirstLine(fromOwner.value_or("")).value_or("").c_str();
}

}  // namespace zrk::svn
