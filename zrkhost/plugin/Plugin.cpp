#include "plugin/Plugin.h"

#include <algorithm>
#include <initializer_list>
#include <type_traits>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "framework/FrameworkControl.h"
#include "plugin/Library.h"

namespace zrkhost {

namespace fs = std::filesystem;

Plugin::Plugin(const fs::path& file) {
  const auto fail = [&file](const std::string& what) { throw CallError(Utf8FromPath(file) + ": " + what); };

  std::error_code error;
  if (!fs::exists(file, error)) fail("there is no such component library");
  const auto library = LoadSharedLibrary(fs::absolute(file));
  if (!library.Handle) fail("cannot be loaded as a component library: " + Utf8FromNative(library.Error));

  // A function is bound by the first of its names that the library exports.
  const auto bind = [&](auto& function, std::initializer_list<const char*> names) {
    void* found = nullptr;
    for (const char* name : names) found = found ? found : FindSymbol(library.Handle, name);
    function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(found);
    if (!function) fail(std::string("is not the component library: it does not export ") + *names.begin());
  };
  bind(isCVSable_, {"IsCVSable"});
  bind(isCVSModifiable_, {"IsCVSModifiable"});
  // As GCC and Clang name them, and as Microsoft's compiler does.
  bind(constructRecord_, {"_ZN12ZRKCVSStatusC1Ev", "??0ZRKCVSStatus@@QEAA@XZ"});
  bind(destroyRecord_, {"_ZN12ZRKCVSStatusD1Ev", "??1ZRKCVSStatus@@QEAA@XZ"});

  const auto entries = standin::DictionaryEntries();
  for (const char* interface : {"ZRKICVS", "ZRKICVSManager", "ZRKICVSModifiable"}) {
    const bool filled = std::any_of(entries.begin(), entries.end(), [interface](const auto& entry) {
      return entry.Interface == interface && entry.LateType == "ASMPRODUCT";
    });
    if (!filled) fail(std::string("is not the component library: it brings no products with ") + interface);
  }
}

}  // namespace zrkhost
