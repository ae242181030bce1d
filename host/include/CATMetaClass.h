#pragma once

#include <cstddef>
#include <string>

#include "CATBaseUnknown.h"

enum class CATMetaClassKind { Implementation, Interface, DataExtension, Tie };

// Makes the extension of `extended` when it is first asked for; null when it cannot be made.
using CATExtensionFactory = CATBaseUnknown* (*)(CATBaseUnknown& extended);

// What the framework knows of a class: the meta-object of an interface, of a data extension, or of the
// tie between the two.
class CATMetaClass {
public:
  // The meta-class of the ties that join an interface to an extension.
  CATMetaClass(const CATIID& interfaceId, const char* interfaceName, CATMetaClass* interfaceMeta,
               CATMetaClass* extensionMeta);

  // Gives null when memory is exhausted; a `new` expression is then null.
  static void* operator new(std::size_t size) noexcept;
  static void operator delete(void* memory) noexcept;

  const char* Name() const { return name_.c_str(); }
  CATMetaClassKind Kind() const { return kind_; }
  // Meta-object of the class it derives from; for a tie that of its interface.
  CATMetaClass* Parent() const { return parent_; }
  // For a tie the meta-object of the extension it leads to, else null.
  CATMetaClass* Extension() const { return extension_; }
  // Late type that an extension extends; empty for all others.
  const std::string& LateType() const { return lateType_; }
  const std::string& Access() const { return access_; }
  // Identifier of an interface or of a tie's interface.
  const CATIID& InterfaceId() const { return interfaceId_; }
  CATExtensionFactory Factory() const { return factory_; }

private:
  friend CATMetaClass* fct_RetrieveMetaObject(const char*, CATMetaClassKind, CATMetaClass*, const char*,
                                              const char*, CATExtensionFactory);
  friend CATMetaClass* fct_RetrieveInterfaceMetaObject(const CATIID&, const char*);
  CATMetaClass() = default;

  std::string name_;
  CATMetaClassKind kind_ = CATMetaClassKind::Implementation;
  CATMetaClass* parent_ = nullptr;
  CATMetaClass* extension_ = nullptr;
  std::string lateType_;
  std::string access_;
  CATIID interfaceId_;
  CATExtensionFactory factory_ = nullptr;
};

// The meta-object of the class named, made on the first call and kept by the framework; later calls
// give the same object whatever their other arguments are. Null without a name and when memory is
// exhausted; the next call then tries again.
CATMetaClass* fct_RetrieveMetaObject(const char* className, CATMetaClassKind kind, CATMetaClass* parent,
                                     const char* lateType, const char* access, CATExtensionFactory factory);

// The same for an interface, which is known by its identifier.
CATMetaClass* fct_RetrieveInterfaceMetaObject(const CATIID& interfaceId, const char* name);

// Interfaces declare and define their identity with these two.
#define CATDeclareInterface       \
public:                           \
  static const CATIID& ClassId(); \
  static CATMetaClass* MetaObject();

#define CATImplementInterface(Name, ...)                                 \
  const CATIID& Name::ClassId() {                                        \
    static constexpr CATIID identifier __VA_ARGS__;                      \
    return identifier;                                                   \
  }                                                                      \
  CATMetaClass* Name::MetaObject() {                                     \
    static CATMetaClass* meta = nullptr;                                 \
    if (!meta) meta = fct_RetrieveInterfaceMetaObject(ClassId(), #Name); \
    return meta;                                                         \
  }
