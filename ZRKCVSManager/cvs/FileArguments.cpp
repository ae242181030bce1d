#include "cvs/FileArguments.h"

#include <optional>

#include "CATPrsWorkModeServices.h"
#include "cvs/WorkingCopy.h"
#include "product/ProductDocument.h"
#include "product/ProductTree.h"
#include "product/Redraw.h"
#include "product/StatusInstance.h"

namespace zrk::cvs {
namespace {

// CreateProcessW takes a little more than 32,000 characters for the whole command line.
constexpr int kChunkLimit = 32000;
// A blank and two quotation marks around each path.
constexpr int kArgumentOverhead = 3;
// The mode in which the structure below a product can be walked.
constexpr int kWorkModeDesign = 1;

// Makes the structure below the product ready to be walked and gives the product's document. A product that
// cannot have one, or whose reference is not loaded, loses its attributes and is redrawn.
product::ProductDocument PrepareProduct(const FileArgumentContext& context,
                                        const CATBaseUnknown_var& object) {
  if (const CATIProduct_var product{object}) CATPrsWorkModeServices::SetWorkMode(product, kWorkModeDesign);
  product::ProductDocument document = product::ReachDocument(object);
  if (document.State == product::DocumentState::NoReference ||
      document.State == product::DocumentState::NotLinkable) {
    product::RemoveInstance(object, context.AttributeClass);
    product::Redraw(object);
  }
  return document;
}

// The document's path as the client takes it; nothing when the document is not the client's.
std::optional<CATUnicodeString> ArgumentPath(const FileArgumentContext& context, CVSFolders& folders,
                                             const CATUnicodeString& documentPath) {
  if (documentPath.GetLengthInByte() == 0 || !folders.Hold(documentPath)) return std::nullopt;
  return RelativePath(documentPath, context.SandboxRoot);
}

void AppendArgument(const CATUnicodeString& path, CATUnicodeString& tail) {
  tail += " ";
  tail += Quoted(path);
}

}  // namespace

CATUnicodeString RelativePath(const CATUnicodeString& documentPath, const CATUnicodeString& sandboxRoot) {
  CATUnicodeString path = documentPath;
  path.ReplaceSubString(sandboxRoot, "");
  return path;
}

CATUnicodeString Quoted(const CATUnicodeString& path) {
  return CATUnicodeString("\"") + path + "\"";
}

CATUnicodeString FileArgument(const CATUnicodeString& documentPath, const CATUnicodeString& sandboxRoot) {
  return Quoted(RelativePath(documentPath, sandboxRoot));
}

int AppendCVSFileArgument(const FileArgumentContext& context, const CATBaseUnknown_var& product,
                          CATUnicodeString& tail) {
  const product::ProductDocument document = PrepareProduct(context, product);
  CVSFolders folders;
  if (const auto path = ArgumentPath(context, folders, document.Path)) AppendArgument(*path, tail);
  return 0;
}

int CollectCVSFileArguments(const FileArgumentContext& context, const CATBaseUnknown_var& product,
                            CATListValCATUnicodeString& chunks, std::int32_t* chunk) {
  CVSFolders folders;
  product::WalkProductTree(product, [&](const CATBaseUnknown_var& object) {
    const product::ProductDocument document = PrepareProduct(context, object);
    if (const auto path = ArgumentPath(context, folders, document.Path)) {
      if (chunks[*chunk].GetLengthInChar() + path->GetLengthInChar() + kArgumentOverhead >= kChunkLimit) {
        ++*chunk;
        chunks.Append({});
      }
      AppendArgument(*path, chunks[*chunk]);
    }
    return document.Exists();
  });
  return 0;
}

}  // namespace zrk::cvs
