#include "debug/DebugChannel.h"

#include <windows.h>

#include <string_view>
#include <utility>

#include "debug/ListenerSlot.h"
#include "text/NativeText.h"

// OutputDebugStringW raises an exception that carries the text, for a debugger to see. A handler in the
// process itself sees it too, before any handler of a stack frame.

namespace standin {
namespace {

// Parameters of both: length with the closing NUL, text. The wide one comes first; where nobody takes
// it, or Windows is older than 10, the narrow one is raised.
constexpr DWORD NarrowMessage = 0x40010006;
constexpr DWORD WideMessage = 0x4001000A;

ListenerSlot<std::wstring> listenerSlot;

template <typename Character>
std::basic_string_view<Character> MessageText(const EXCEPTION_RECORD& record) {
  const auto* const text = reinterpret_cast<const Character*>(record.ExceptionInformation[1]);
  if (text == nullptr) return {};
  return text;  // up to the closing NUL: what stands behind it is no message
}

bool Deliver(const EXCEPTION_RECORD& record) noexcept try {
  if (record.NumberParameters < 2) return false;
  switch (record.ExceptionCode) {
    case WideMessage:
      return listenerSlot.Tell(std::wstring(MessageText<wchar_t>(record)));
    case NarrowMessage:
      return listenerSlot.Tell(WideFromNative(MessageText<char>(record)));
    default:
      return false;
  }
} catch (...) {
  return false;
}

// Once delivered, the call that raised the exception goes on as if a debugger had taken it: so the narrow
// exception is seen only where no wide one was raised, and each message comes once.
LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
  return Deliver(*exception->ExceptionRecord) ? EXCEPTION_CONTINUE_EXECUTION : EXCEPTION_CONTINUE_SEARCH;
}

// Registered for as long as this library is loaded.
class Handler {
public:
  Handler() : registration_(AddVectoredExceptionHandler(TRUE, OnException)) {}
  Handler(const Handler&) = delete;
  Handler& operator=(const Handler&) = delete;
  ~Handler() { RemoveVectoredExceptionHandler(registration_); }

private:
  void* registration_;
};

const Handler handler;

}  // namespace

void SetDebugListener(DebugListener listener) {
  listenerSlot.Set(std::move(listener));
}

}  // namespace standin
