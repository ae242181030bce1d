#pragma once

#include <string>
#include <vector>

#include "manager/ZRKECVSManager.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/ClientReports.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"

// The stage for managers of products in a CVS working copy: the folder "proj", and scripted clients.
class CVSStage {
public:
  explicit CVSStage(InstalledClients installed = InstalledClients::Both) : Client(installed) {
    WriteCVSFolder(Folder / "proj", zrk::sample::kCVSRoot, "proj");
  }

  std::string SandboxRoot() const { return Folder.Host() + "\\"; }

  // The product itself, as a manager is made for it. The assembly keeps it.
  CATBaseUnknown& Product(const std::string& path) { return *Products.At(path).Get(); }

  // What the refreshes of one manager are given.
  CATISpecObject_var Root(const std::string& path) { return CATISpecObject_var(Products.At(path)); }

  // Arguments of a run in the working copy: the root and those given.
  static std::vector<std::string> Arguments(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-d", zrk::sample::kCVSRoot});
    return arguments;
  }

  Session TheSession;
  TemporaryFolder Folder;
  ScriptedClient Client;
  Assembly Products{Folder};
};
