#include "support/DebugMessages.h"

#include "debug/DebugChannel.h"

DebugMessages::DebugMessages() {
  standin::SetDebugListener([this](const std::wstring& message) { messages_.push_back(message); });
}

DebugMessages::~DebugMessages() {
  standin::SetDebugListener({});
}
