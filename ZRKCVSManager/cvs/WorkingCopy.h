#pragma once

#include <optional>
#include <string>

#include "CATIProduct.h"
#include "CATUnicodeString.h"

namespace zrk::cvs {

// Where the documents of a product tree are kept under version control, as shown by the files that the
// clients keep in the folder of a document.
struct WorkingCopy {
  // The document examined last lies in a Subversion working copy: `.svn\entries` is beside it, or a database
  // beside or above it (svn/WorkingCopyForm.h).
  bool IsSVN = false;
  // Folder, without a closing "\", of the last such document.
  CATUnicodeString SVNWorkingFolder;
  // Local folder, with a closing "\", that corresponds to the repository's root folder: the document's
  // path up to where the text of `CVS\Repository` occurs first, empty when it does not occur.
  CATUnicodeString SandboxRoot;
  // Text of `CVS\Root`, without line feeds.
  CATUnicodeString CVSRoot;
  // Folder that holds the `.svn` with the database of the last such Subversion working copy found, without a
  // closing "\".
  CATUnicodeString SVNDatabaseRoot{};
};

// Looks beside the product's document and, where there is no `CVS\Repository`, goes on with its children
// of type CATIProduct, depth first: the last CVS working copy found holds, and the last product examined
// decides whether it is Subversion. A document in a Subversion working copy with a database ends its branch,
// as one of CVS does; when the last product examined is in no working copy at all, and none of CVS was found,
// the last such working copy holds. What is not found stays as it was; a product without a stored document
// ends its branch.
void DiscoverWorkingCopy(const CATIProduct_var& product, WorkingCopy& workingCopy);

// Says which documents lie in a CVS working copy. The answer for the last folder is remembered, as most
// products of an assembly have their documents beside each other: good for one walk over a tree.
class CVSFolders {
public:
  // Whether `CVS\Repository` is beside a document of that path.
  bool Hold(const CATUnicodeString& documentPath);

private:
  std::optional<std::string> folder_;
  bool isCVS_ = false;
};

}  // namespace zrk::cvs
