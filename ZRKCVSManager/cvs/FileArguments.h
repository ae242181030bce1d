#pragma once

#include <cstdint>

#include "CATListVal.h"
#include "ZRKIAttributes.h"

// The documents of products as file arguments of a CVS command line.
namespace zrk::cvs {

// The path without the first occurrence of the working folder: how the client, which runs there, is to
// call the file.
CATUnicodeString RelativePath(const CATUnicodeString& documentPath, const CATUnicodeString& sandboxRoot);

// The path in double quotes.
CATUnicodeString Quoted(const CATUnicodeString& path);

// The relative path in double quotes.
CATUnicodeString FileArgument(const CATUnicodeString& documentPath, const CATUnicodeString& sandboxRoot);

struct FileArgumentContext {
  const CATUnicodeString& SandboxRoot;
  // Taken off a product whose reference is not loaded or cannot have a document; such a product is also
  // redrawn.
  const ZRKIAttClass_var& AttributeClass;
};

// Appends the quoted relative path of the product's document, with a blank before it, to `tail`, when the
// document lies in a CVS working copy. The product is put into work mode 1 for this; what is null or no
// product is left alone. Always 0.
int AppendCVSFileArgument(const FileArgumentContext& context, const CATBaseUnknown_var& product,
                          CATUnicodeString& tail);

// Does so for the product and all below it, into chunks of less than 32,000 characters (a longer path
// stands alone): for a path that would fill up the chunk a new one is appended. `chunk` is the position,
// from 1, of the chunk being filled, which must be the last of `chunks`, and moves with it. Below a product
// without a document the walk does not go. Always 0.
int CollectCVSFileArguments(const FileArgumentContext& context, const CATBaseUnknown_var& product,
                            CATListValCATUnicodeString& chunks, std::int32_t* chunk);

}  // namespace zrk::cvs
