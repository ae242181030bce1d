#pragma once

#include <cstdint>

#include "CATBaseUnknown.h"
#include "ZRKIAttributes.h"
#include "cvs/ReportTables.h"

// Writing what the filed reports say about each product's document onto the product.
namespace zrk::attributes {

struct StatusSource {
  const ZRKIAttClass_var& AttributeClass;
  // By the storage path of the document.
  const cvs::ReportTable& StatusBlocks;
  const cvs::ReportTable& EditLines;
};

// Writes onto the product:
//
//   "Revision"  the working revision from the status report
//   "Status"    "Edit" when the file's mode lets its owner write, else "Locked" when the edit report names
//               it, else "ReadOnly"
//   "Release"   the first tag from the status report
//   "Comment"   the lines of the edit report when "Locked", else empty
//
// and has it redrawn. A document that the status report does not know keeps its attributes and is named in
// a line on standard output; one whose status is "Unknown" loses them, as does a product that cannot have
// a document. The result is that of ParseCVSStatusBlock, 0 when nothing was parsed.
std::int32_t WriteStatusAttributes(const StatusSource& source, const CATBaseUnknown_var& product);

// Does so for the product and all below it. Below a product without a document the walk does not go. The
// result is that of the first product.
std::int32_t WriteStatusAttributesTree(const StatusSource& source, const CATBaseUnknown_var& product);

}  // namespace zrk::attributes
