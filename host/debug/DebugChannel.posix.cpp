#include "debug/DebugChannel.h"

#include <windows.h>

#include <new>
#include <utility>

#include "debug/ListenerSlot.h"

namespace standin {
namespace {

ListenerSlot<std::wstring> listenerSlot;

}  // namespace

void SetDebugListener(DebugListener listener) {
  listenerSlot.Set(std::move(listener));
}

}  // namespace standin

void OutputDebugStringW(LPCWSTR message) try {
  standin::listenerSlot.Tell(message ? message : L"");
} catch (const std::bad_alloc&) {
  // Nobody listens.
}
