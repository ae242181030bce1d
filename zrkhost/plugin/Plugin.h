#pragma once

#include <cstddef>
#include <filesystem>
#include <new>

#include "ZRKCVSStatus.h"

namespace zrkhost {

// The component library, loaded at run time as the host would load it.
class Plugin {
public:
  // Throws CallError, with the file's name and the reason, when the file cannot be loaded or is not the
  // component: a symbol is missing, or loading it did not fill the host's dictionary.
  explicit Plugin(const std::filesystem::path& file);

  int IsCVSable(CATBaseUnknown* object) const { return isCVSable_(object); }
  int IsCVSModifiable(CATBaseUnknown* object) const { return isCVSModifiable_(object); }

private:
  friend class StatusRecord;

  int (*isCVSable_)(CATBaseUnknown*) = nullptr;
  int (*isCVSModifiable_)(CATBaseUnknown*) = nullptr;
  void (*constructRecord_)(void*) = nullptr;
  void (*destroyRecord_)(void*) = nullptr;
};

// A status record that the component itself makes and ends. Its constructor and destructor are called by
// their addresses, because a program that names them would have to be linked with the library.
class StatusRecord {
public:
  explicit StatusRecord(const Plugin& plugin) : destroy_(plugin.destroyRecord_) {
    plugin.constructRecord_(storage_);
  }
  ~StatusRecord() { destroy_(storage_); }
  StatusRecord(const StatusRecord&) = delete;
  StatusRecord& operator=(const StatusRecord&) = delete;

  ZRKCVSStatus& Get() { return *std::launder(reinterpret_cast<ZRKCVSStatus*>(storage_)); }

private:
  void (*destroy_)(void*);
  alignas(ZRKCVSStatus) std::byte storage_[sizeof(ZRKCVSStatus)]{};
};

}  // namespace zrkhost
