#pragma once

#include <string>
#include <unordered_map>

#include "CATUnicodeString.h"

// The two forms in which Subversion keeps a working copy: up to 1.6 as text entries in the `.svn` of every
// folder, since 1.7 as one database, `.svn\wc.db`, at the top.
namespace zrk::svn {

enum class Form {
  // No Subversion working copy: also a folder of CVS.
  None,
  // `.svn\entries` in the folder itself has more than one line.
  Text,
  // The nearest folder, at or above this one, that says something of version control holds `.svn\wc.db`.
  Database,
};

struct FolderForm {
  Form Kind = Form::None;
  // The folder that holds the database's `.svn`, without a closing "\"; empty in the other forms.
  std::string DatabaseRoot;
};

// Looks for the form of folders on the disk and remembers it: good for one walk over a tree.
class WorkingCopyForms {
public:
  // The form of a folder without a closing "\", which need not exist. The way up ends without a database
  // at a folder with text entries or `CVS\Repository`, at a drive and at a `\\server\share`.
  const FolderForm& Of(const std::string& folder);
  // That of the folder of a document; none for one that was never stored, whose path is empty.
  const FolderForm& OfDocument(const CATUnicodeString& path);

private:
  std::unordered_map<std::string, FolderForm> known_;
};

// The form of the folder of that document, looked for anew.
Form FormOfDocument(const CATUnicodeString& path);

}  // namespace zrk::svn
