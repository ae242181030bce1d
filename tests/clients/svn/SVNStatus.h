#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "User.h"

// What the installed client says about a working copy when it is asked directly, and what products must show
// by that. Nothing here is shared with the component.

struct SVNLock {
  std::string Token;
  std::string Owner;
  std::string Comment;
};

struct SVNEntry {
  // The working copy's word, such as "normal" or "unversioned".
  std::string Item;
  // Last committed revision; empty for what never was.
  std::string Revision;
  std::optional<SVNLock> OwnLock;
  std::optional<SVNLock> RepositoryLock;
};

struct SVNAnswer {
  // By full path. Where an external is told of twice, what it holds counts.
  std::map<std::string, SVNEntry> Entries;
  // False when the repository could not be reached and the working copy alone was asked.
  bool RepositoryAsked = true;

  // Both at once, of different working copies.
  SVNAnswer And(const SVNAnswer& other) const;
};

// `svn status -v -u --xml` over the whole working copy with its externals; without "-u" when the repository
// is out of reach. Throws when the client says neither.
SVNAnswer AskSVN(const std::filesystem::path& workingCopy);

// "Comment" has one form after the refresh of a tree and another after a command on one file.
enum class CommentForm { Tree, OneFile };

// The attributes that a product must get whose document the client tells this of; null: none.
Json ExpectedAttributes(const SVNEntry& entry, bool repositoryAsked, CommentForm form = CommentForm::Tree);

// Expects of every product of a report that it shows what the client says of its document, and nothing when
// it says nothing.
void ExpectWhatSVNSays(const Json& report, const SVNAnswer& answer, CommentForm form = CommentForm::Tree);
