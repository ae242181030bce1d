#include "windows/LaunchLog.h"

#include <new>
#include <utility>

#include "debug/ListenerSlot.h"
#include "windows/LaunchReport.h"

namespace standin {
namespace {

ListenerSlot<Launch> slot;

std::wstring Text(const wchar_t* text) {
  return text ? text : L"";
}

}  // namespace

void SetLaunchListener(LaunchListener listener) {
  slot.Set(std::move(listener));
}

void ReportLaunch(const wchar_t* program, const wchar_t* commandLine, const wchar_t* folder,
                  std::uint32_t creationFlags, bool started) noexcept try {
  slot.Tell({Text(program), Text(commandLine), Text(folder), creationFlags, started});
} catch (const std::bad_alloc&) {
  // The launch itself does not depend on being heard of.
}

}  // namespace standin
