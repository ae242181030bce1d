#include "attributes/StatusAttributes.h"

#include <iostream>
#include <optional>
#include <string_view>

#include "cvs/StatusBlock.h"
#include "files/FileMode.h"
#include "product/ProductDocument.h"
#include "product/ProductTree.h"
#include "product/Redraw.h"
#include "product/StatusInstance.h"

namespace zrk::attributes {
namespace {

struct EditState {
  const char* Status;
  const char* Comment;
};

// The mode of the file decides who may edit it, not what the client reports.
EditState EditStateOf(const StatusSource& source, const char* path) {
  if (files::IsWritable(path)) return {"Edit", ""};
  const auto line = source.EditLines.find(std::string_view(path));
  if (line == source.EditLines.end()) return {"ReadOnly", ""};
  return {"Locked", line->second.c_str()};
}

std::int32_t WriteFromReports(const StatusSource& source, const CATBaseUnknown_var& product,
                              const CATUnicodeString& documentPath) {
  const char* const path = documentPath.ConvertToChar();
  const auto block = source.StatusBlocks.find(std::string_view(path));
  if (block == source.StatusBlocks.end()) {
    std::cout << "File " << path << " not found!" << std::endl;
    return 0;
  }
  ZRKCVSStatus record;
  const std::int32_t result = cvs::ParseCVSStatusBlock(block->second, record);
  if (record.Status == "Unknown") {
    product::RemoveInstance(product, source.AttributeClass);
    return result;
  }
  const EditState state = EditStateOf(source, path);
  product::WriteStatusValues(product, source.AttributeClass,
                             {record.WorkingRevision, state.Status, record.ExistingTags, state.Comment});
  return result;
}

// Nothing when the product has no document.
std::optional<std::int32_t> WriteOne(const StatusSource& source, const CATBaseUnknown_var& product) {
  const product::ProductDocument document = product::ReachDocumentOrClear(product, source.AttributeClass);
  if (!document.Exists()) return std::nullopt;
  const std::int32_t result = WriteFromReports(source, product, document.Path);
  product::Redraw(product);
  return result;
}

}  // namespace

std::int32_t WriteStatusAttributes(const StatusSource& source, const CATBaseUnknown_var& product) {
  return WriteOne(source, product).value_or(0);
}

std::int32_t WriteStatusAttributesTree(const StatusSource& source, const CATBaseUnknown_var& product) {
  std::optional<std::int32_t> first;
  product::WalkProductTree(product, [&](const CATBaseUnknown_var& object) {
    const std::optional<std::int32_t> result = WriteOne(source, object);
    if (!first) first = result.value_or(0);
    return result.has_value();
  });
  return first.value_or(0);
}

}  // namespace zrk::attributes
