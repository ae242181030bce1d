#pragma once

#include <string>
#include <vector>

#include "cvs/FileArguments.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/Session.h"

// The stage for collecting the file arguments of a tree: a CVS working copy in the folder "proj".
class ArgumentChunks {
public:
  ArgumentChunks() { WriteCVSFolder(Folder / "proj", "/cvs/root", "proj"); }

  // A reference product whose document, which is not written, has a relative path of `characters`, all of
  // them, but for the folder, the text `character`. Gives that path.
  std::string AddWithPathOf(int characters, const std::string& name, const std::string& character = "a") {
    std::string path = "proj\\";
    const int folder = static_cast<int>(path.size());
    for (int i = folder; i < characters; ++i) path += character;
    Tree.Add({.Name = name, .Document = Folder.Host() + "\\" + path});
    return path;
  }

  // Collects into `chunks` from that position on. Gives the position reached.
  int Collect(const CATBaseUnknown_var& root, CATListValCATUnicodeString& chunks, std::int32_t position) {
    const ZRKIAttClass_var attributeClass = StatusClass();
    Result = zrk::cvs::CollectCVSFileArguments({SandboxRoot, attributeClass}, root, chunks, &position);
    return position;
  }

  // Collects into one chunk that holds `first`. Gives all chunks.
  std::vector<std::string> Collected(const CATBaseUnknown_var& root, const std::string& first = "") {
    CATListValCATUnicodeString chunks;
    chunks.Append(first.c_str());
    Position = Collect(root, chunks, chunks.Size());
    std::vector<std::string> texts;
    for (int i = 1; i <= chunks.Size(); ++i) texts.emplace_back(chunks[i].ConvertToChar());
    return texts;
  }

  Session TheSession;
  TemporaryFolder Folder;
  Assembly Tree{Folder};
  CATUnicodeString SandboxRoot{(Folder.Host() + "\\").c_str()};
  std::int32_t Position = 0;
  std::int32_t Result = -1;
};

// The argument for a path.
inline std::string Argument(const std::string& path) {
  return " \"" + path + "\"";
}
