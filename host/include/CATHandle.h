#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

class CATBaseUnknown;

// A reference-counted handle on an interface: the `_var` types. Null, or holding one reference that it
// gives back when it goes.
//
// Making a handle from any other handle or object is a cast: the object is asked for the interface,
// and the handle is null when it does not have it. A CATBaseUnknown_var takes any object as it is.
template <class Interface>
class CATHandle {
public:
  CATHandle() = default;
  CATHandle(std::nullptr_t) {}
  CATHandle(CATBaseUnknown* object) : pointer_(Cast(object)) {}
  template <class Other>
  CATHandle(const CATHandle<Other>& other) : pointer_(Cast(other.Get())) {}
  CATHandle(const CATHandle& other) : pointer_(other.pointer_) {
    if (pointer_) pointer_->AddRef();
  }
  CATHandle(CATHandle&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  CATHandle& operator=(CATHandle other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~CATHandle() {
    if (pointer_) pointer_->Release();
  }

  // Takes over a reference that the caller already owns.
  static CATHandle Adopt(Interface* owned) {
    CATHandle handle;
    handle.pointer_ = owned;
    return handle;
  }

  Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  Interface& operator*() const { return *pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  friend bool operator==(const CATHandle& handle, std::nullptr_t) { return !handle.pointer_; }

private:
  // A template, so that it needs to know objects only where a handle is made from one.
  template <class Object>
  static Interface* Cast(Object* object) {
    if (!object) return nullptr;
    if constexpr (std::is_same_v<Interface, CATBaseUnknown>) {
      object->AddRef();
      return object;
    } else {
      return static_cast<Interface*>(object->QueryInterface(Interface::ClassId()));
    }
  }

  Interface* pointer_ = nullptr;
};
