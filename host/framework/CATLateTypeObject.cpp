#include "framework/CATLateTypeObject.h"

#include <utility>

#include "framework/Dictionary.h"

CATLateTypeObject::CATLateTypeObject(std::string_view lateType) : type_(standin::LateTypeNamed(lateType)) {}

CATLateTypeObject::~CATLateTypeObject() {
  EndExtensions();
}

CATBaseUnknown* CATLateTypeObject::QueryInterface(const CATIID& interfaceId) {
  if (CATBaseUnknown* const own = OwnInterface(interfaceId)) {
    own->AddRef();
    return own;
  }
  const standin::TieBinding* const binding = type_.Find(interfaceId);
  if (!binding || !binding->Creator) return nullptr;
  CATBaseUnknown* const extension = ExtensionOf(*binding->Extension);
  return extension ? binding->Creator(extension) : nullptr;
}

CATBaseUnknown* CATLateTypeObject::ExtensionOf(CATMetaClass& meta) {
  for (const Slot& slot : slots_) {
    if (slot.Meta == &meta) return slot.Extension.get();
  }
  if (ending_ || !meta.Factory()) return nullptr;

  // The slot is taken before the extension is made: its constructor may ask for its own interfaces, and
  // must not set off a second one. Those that it asks for beyond come behind it, so its place stays.
  const std::size_t position = slots_.size();
  slots_.push_back({&meta, nullptr});
  CATBaseUnknown* const extension = meta.Factory()(*this);
  if (extension) {
    slots_[position].Extension.reset(extension);
  } else {
    slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(position));
  }
  return extension;
}

void CATLateTypeObject::EndExtensions() {
  ending_ = true;
  while (!slots_.empty()) {
    // Out of its slot first, so that nothing finds it while it ends.
    const Slot ended = std::move(slots_.back());
    slots_.pop_back();
  }
}
