#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CATIProduct.h"
#include "ZRKIAttributes.h"
#include "session/SessionDescription.h"

// What the host's interfaces say about the products of the session.
namespace zrkhost {

// The reference product of a product; null when it is not loaded.
CATIProduct_var ReferenceOf(const CATBaseUnknown_var& product);
// Full path of the product's document in the host's form; absent when it has none.
std::optional<std::string> DocumentOf(const CATBaseUnknown_var& product);
// The products one level below it, in order.
std::vector<CATBaseUnknown_var> ChildrenOf(const CATBaseUnknown_var& product);

// Package of the attributes that the component writes.
constexpr const char* kAttributePackage = "ZRKCVS";

// The class of that package; null when the session's dictionary does not know it, or there is none.
ZRKIAttClass_var AttributeClassOfSession();
// The product's instance of that class; null when it has none.
ZRKIAttInstance_var AttributeInstanceOf(const CATBaseUnknown_var& product);
// Every parameter of that instance with its value, UTF-8; absent when there is no instance.
std::optional<AttributeValues> AttributesOf(const CATBaseUnknown_var& product);

}  // namespace zrkhost
