#pragma once

#include <string>

#include "attributes/StatusAttributes.h"
#include "component/product/ProductEvents.h"
#include "support/Assembly.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "support/Session.h"

// The stage for writing status attributes: products with documents, and the filed reports.
class AttributeStage {
public:
  // Files a status block, under the document's path.
  void FileBlock(const std::string& document, const std::string& revision,
                 const std::string& status = "Up-to-date") {
    Blocks[Folder.Host(document)] = zrk::sample::StatusBlock(document, revision, status);
  }

  std::int32_t Write(const CATBaseUnknown_var& product) {
    const ZRKIAttClass_var attributeClass = StatusClass();
    return zrk::attributes::WriteStatusAttributes({attributeClass, Blocks, EditLines}, product);
  }
  std::int32_t WriteTree(const CATBaseUnknown_var& product) {
    const ZRKIAttClass_var attributeClass = StatusClass();
    return zrk::attributes::WriteStatusAttributesTree({attributeClass, Blocks, EditLines}, product);
  }

  Session TheSession;
  TemporaryFolder Folder;
  Assembly Products{Folder};
  zrk::cvs::ReportTable Blocks;
  zrk::cvs::ReportTable EditLines;
  RedrawnProducts Redrawn;

  // What a product carries before, in some tests.
  const StatusAttributes Old{"0.9", "Locked", "old", "by bert"};
  // The first tag of every block.
  const std::string Tag = "release-2                (revision: 1.4)";
};
