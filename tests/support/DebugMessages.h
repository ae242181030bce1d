#pragma once

#include <string>
#include <vector>

// Records what this process writes to the debugger while it lives, one text for each message.
class DebugMessages {
public:
  DebugMessages();
  DebugMessages(const DebugMessages&) = delete;
  DebugMessages& operator=(const DebugMessages&) = delete;
  ~DebugMessages();

  const std::vector<std::wstring>& All() const { return messages_; }
  void Clear() { messages_.clear(); }

private:
  std::vector<std::wstring> messages_;
};
