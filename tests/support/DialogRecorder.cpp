#include "support/DialogRecorder.h"

#include <utility>

using standin::DialogAnswer;

DialogRecorder::DialogRecorder(std::deque<DialogAnswer> answers) : answers_(std::move(answers)) {
  standin::SetDialogResponder([this](const standin::DialogRequest& request) { return Answer(request); });
}

DialogRecorder::~DialogRecorder() {
  standin::SetDialogResponder({});
}

DialogAnswer DialogRecorder::Answer(const standin::DialogRequest& request) {
  requests_.push_back(request);
  if (whileShown_) whileShown_();
  if (!request.IsQuestion()) return DialogAnswer::Acknowledged;
  if (answers_.empty()) return DialogAnswer::No;
  const DialogAnswer answer = answers_.front();
  answers_.pop_front();
  return answer;
}
