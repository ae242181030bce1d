#include "debug/DebugChannel.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using standin::SetDebugListener;

namespace {

// Collects the messages for as long as it lives.
class Listener {
public:
  Listener() {
    SetDebugListener([this](const std::wstring& message) {
      const std::lock_guard lock(mutex_);
      Messages.push_back(message);
    });
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener() { SetDebugListener(nullptr); }

  std::vector<std::wstring> Messages;

private:
  std::mutex mutex_;
};

}  // namespace

TEST(DebugChannel, DeliversEachCallAsOneMessage) {
  const Listener listener;
  OutputDebugStringW(L"Create process failed with");
  OutputDebugStringW(L"\nfirst\nsecond\n");
  OutputDebugStringW(L"");
  EXPECT_THAT(listener.Messages,
              testing::ElementsAre(L"Create process failed with", L"\nfirst\nsecond\n", L""));
}

TEST(DebugChannel, DeliversCharactersOfTheCodePage) {
  const Listener listener;
  OutputDebugStringW(L"\u00E4\u00F6");
  EXPECT_THAT(listener.Messages, testing::ElementsAre(L"\u00E4\u00F6"));
}

TEST(DebugChannel, DeliversLongMessagesWhole) {
  const Listener listener;
  const std::wstring message(30000, L'x');
  OutputDebugStringW(message.c_str());
  EXPECT_THAT(listener.Messages, testing::ElementsAre(message));
}

TEST(DebugChannel, DropsWhatNobodyListensTo) {
  std::vector<std::wstring> heard;
  {
    const Listener listener;
    OutputDebugStringW(L"heard");
    SetDebugListener(nullptr);
    OutputDebugStringW(L"unheard");
    heard = listener.Messages;
  }
  OutputDebugStringW(L"unheard");
  EXPECT_THAT(heard, testing::ElementsAre(L"heard"));
}

TEST(DebugChannel, DeliversOnTheThreadThatWrites) {
  std::thread::id heardOn;
  SetDebugListener([&](const std::wstring&) { heardOn = std::this_thread::get_id(); });
  OutputDebugStringW(L"here");
  SetDebugListener(nullptr);
  EXPECT_EQ(heardOn, std::this_thread::get_id());
}

TEST(DebugChannel, KeepsMessagesOfSeveralThreadsApart) {
  const Listener listener;
  const std::wstring message(200, L'm');
  std::vector<std::thread> writers;
  for (int i = 0; i < 4; ++i) {
    writers.emplace_back([&] {
      for (int j = 0; j < 100; ++j) OutputDebugStringW(message.c_str());
    });
  }
  for (std::thread& writer : writers) writer.join();
  EXPECT_THAT(listener.Messages, testing::AllOf(testing::SizeIs(400), testing::Each(message)));
}

TEST(DebugChannel, KeepsItsListenersExceptionsFromTheCaller) {
  int calls = 0;
  SetDebugListener([&](const std::wstring&) {
    ++calls;
    throw std::runtime_error("listener");
  });
  OutputDebugStringW(L"one");
  OutputDebugStringW(L"two");
  SetDebugListener(nullptr);
  EXPECT_EQ(calls, 2);
}

TEST(DebugChannel, LetsAListenerReplaceItself) {
  std::vector<std::wstring> later;
  SetDebugListener([&](const std::wstring&) {
    SetDebugListener([&](const std::wstring& message) { later.push_back(message); });
  });
  OutputDebugStringW(L"one");
  OutputDebugStringW(L"two");
  SetDebugListener(nullptr);
  EXPECT_THAT(later, testing::ElementsAre(L"two"));
}
