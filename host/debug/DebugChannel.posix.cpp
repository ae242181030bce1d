#include "debug/DebugChannel.h"

#include <windows.h>

#include <new>
#include <utility>

#include "debug/ListenerSlot.h"

namespace standin {
namespace {

ListenerSlot<std::wstring> slot;

}  // namespace

void SetDebugListener(DebugListener listener) {
  slot.Set(std::move(listener));
}

}  // namespace standin

void OutputDebugStringW(LPCWSTR message) try {
  standin::slot.Tell(message ? message : L"");
} catch (const std::bad_alloc&) {
  // Nobody listens.
}
