#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "dialogs/UserInterface.h"

// The user while it lives: records the dialogs, acknowledges notices, and answers questions with the
// answers given, in order, and with no when they are used up.
class DialogRecorder {
public:
  explicit DialogRecorder(std::deque<standin::DialogAnswer> answers = {});
  DialogRecorder(const DialogRecorder&) = delete;
  DialogRecorder& operator=(const DialogRecorder&) = delete;
  ~DialogRecorder();

  const std::vector<standin::DialogRequest>& Requests() const { return requests_; }
  void Clear() { requests_.clear(); }

  // Runs while a dialog is up, before it is answered.
  void WhileShown(std::function<void()> action) { whileShown_ = std::move(action); }

private:
  standin::DialogAnswer Answer(const standin::DialogRequest& request);

  std::deque<standin::DialogAnswer> answers_;
  std::vector<standin::DialogRequest> requests_;
  std::function<void()> whileShown_;
};
