#include "page/Browser.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "support/Files.h"

namespace fs = std::filesystem;

namespace {

constexpr int kPatience = 60'000;
// Descriptors at which the browser reads and writes the protocol.
constexpr int kBrowserReads = 3;
constexpr int kBrowserWrites = 4;

[[noreturn]] void Fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

// Both ends above those that the browser gets.
std::array<int, 2> MakePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) Fail("pipe");
  for (int& end : ends) {
    const int low = end;
    end = fcntl(low, F_DUPFD_CLOEXEC, 10);
    close(low);
    if (end < 0) Fail("fcntl");
  }
  return ends;
}

std::string Percent(const std::string& path) {
  std::string encoded;
  for (const char c : path) {
    if (std::isalnum(static_cast<unsigned char>(c)) || std::string("/-_.~").find(c) != std::string::npos) {
      encoded += c;
    } else {
      constexpr const char* kDigits = "0123456789ABCDEF";
      const auto byte = static_cast<unsigned char>(c);
      encoded += {'%', kDigits[byte / 16], kDigits[byte % 16]};
    }
  }
  return encoded;
}

}  // namespace

Browser::Browser() {
  SetMedia("light");
  Start();
}

Browser::~Browser() {
  try {
    CallWith({{"method", "Browser.close"}});
  } catch (const std::exception&) {
    // It ends all the same, below.
  }
  close(toBrowser_);
  close(fromBrowser_);
  const int process = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
  pollfd end = {.fd = process, .events = POLLIN, .revents = 0};
  poll(&end, 1, 10'000);
  if (process >= 0) close(process);
  // The processes of its pages have the group of the first one. They may be writing into the profile.
  kill(-process_, SIGKILL);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

void Browser::Start() {
  const auto commands = MakePipe();
  const auto answers = MakePipe();
  const std::string profile = "--user-data-dir=" + (folder_ / "profile").string();
  const std::string log = (folder_ / "log").string();
  std::vector<std::string> arguments = {"chromium",
                                        "--headless",
                                        "--no-sandbox",
                                        "--disable-gpu",
                                        "--disable-quic",
                                        "--no-first-run",
                                        "--disable-background-networking",
                                        "--disable-component-update",
                                        "--disable-sync",
                                        "--disable-dev-shm-usage",
                                        "--hide-scrollbars",
                                        "--window-size=1280,800",
                                        "--remote-debugging-pipe",
                                        profile};
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, commands[0], kBrowserReads);
  posix_spawn_file_actions_adddup2(&actions, answers[1], kBrowserWrites);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF);
  posix_spawnattr_setpgroup(&attributes, 0);
  // A browser that has gone is told by the write that fails.
  std::signal(SIGPIPE, SIG_IGN);
  sigset_t defaults;
  sigemptyset(&defaults);
  sigaddset(&defaults, SIGPIPE);
  posix_spawnattr_setsigdefault(&attributes, &defaults);
  const int error = posix_spawnp(&process_, "chromium", &actions, &attributes, pointers.data(), environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  close(commands[0]);
  close(answers[1]);
  toBrowser_ = commands[1];
  fromBrowser_ = answers[0];
  if (error != 0) {
    close(toBrowser_);
    close(fromBrowser_);
    throw std::system_error(error, std::generic_category(), "chromium");
  }
}

void Browser::SetMedia(const std::string& scheme, const std::string& media) {
  media_ = {{"media", media}, {"features", {{{"name", "prefers-color-scheme"}, {"value", scheme}}}}};
}

void Browser::Open(const fs::path& file, const std::string& fragment) {
  const std::string before = target_;
  session_.clear();
  target_ = Call("Target.createTarget", {{"url", "about:blank"}}).at("targetId");
  session_ = Call("Target.attachToTarget", {{"targetId", target_}, {"flatten", true}}).at("sessionId");
  if (!before.empty()) Call("Target.closeTarget", {{"targetId", before}});
  Call("Page.enable");
  Call("Page.setLifecycleEventsEnabled", {{"enabled", true}});
  Call("Emulation.setEmulatedMedia", media_);
  Call("Emulation.setScriptExecutionDisabled", {{"value", !scripts_}});
  const Json opened =
      Call("Page.navigate",
           {{"url", "file://" + Percent(file.string()) + (fragment.empty() ? "" : "#" + fragment)}});
  if (opened.contains("errorText")) throw std::runtime_error(file.string() + ": " + opened.dump());
  while (loaded_ != opened.at("loaderId")) Receive();
}

Browser::Json Browser::Run(const std::string& expression) {
  const Json answer =
      Call("Runtime.evaluate", {{"expression", expression}, {"returnByValue", true}, {"awaitPromise", true}});
  if (answer.contains("exceptionDetails")) throw std::runtime_error(answer.at("exceptionDetails").dump());
  return answer.at("result").value("value", Json());
}

void Browser::Press(const std::string& key) {
  // Keys that do something of their own in the browser have numbers besides.
  const int number = key == "Tab" ? 9 : key == "Enter" ? 13 : key == " " ? 32 : 0;
  for (const char* type : {"rawKeyDown", "keyUp"}) {
    Call("Input.dispatchKeyEvent", {{"type", type}, {"key", key}, {"windowsVirtualKeyCode", number}});
  }
}

void Browser::PointAt(const std::string& selector) {
  Mouse("mouseMoved", MiddleOf(selector));
}

void Browser::Click(const std::string& selector) {
  const Json point = MiddleOf(selector);
  Mouse("mousePressed", point);
  Mouse("mouseReleased", point);
}

Browser::Json Browser::MiddleOf(const std::string& selector) {
  return Run("(() => { const element = document.querySelector(" + Json(selector).dump() +
             "); element.scrollIntoView({block: 'center'}); const box = element.getBoundingClientRect();"
             "return {x: box.x + box.width / 2, y: box.y + box.height / 2}; })()");
}

void Browser::Mouse(const std::string& type, const Json& point) {
  Json event = point;
  event["type"] = type;
  event["button"] = type == "mouseMoved" ? "none" : "left";
  event["clickCount"] = type == "mouseMoved" ? 0 : 1;
  Call("Input.dispatchMouseEvent", event);
}

Browser::Json Browser::AccessibilityNodes() {
  Json tree = Call("Accessibility.getFullAXTree");
  Json nodes = Json::array();
  for (Json& node : tree.at("nodes")) {
    if (!node.at("ignored")) nodes.push_back(std::move(node));
  }
  return nodes;
}

Browser::Json Browser::Call(const std::string& method, const Json& parameters) {
  Json message = {{"method", method}, {"params", parameters}};
  if (!session_.empty()) message["sessionId"] = session_;
  return CallWith(std::move(message));
}

Browser::Json Browser::CallWith(Json message) {
  message["id"] = ++lastCall_;
  Send(message.dump());
  for (;;) {
    Json answer = Receive();
    if (answer.value("id", 0) != lastCall_) continue;
    if (answer.contains("error"))
      throw std::runtime_error(message.at("method").get<std::string>() + ": " + answer.at("error").dump());
    return answer.at("result");
  }
}

void Browser::Send(const std::string& message) {
  // The closing zero ends a message of the protocol.
  for (std::size_t sent = 0; sent <= message.size();) {
    const ssize_t size = write(toBrowser_, message.c_str() + sent, message.size() + 1 - sent);
    if (size < 0 && errno != EINTR) Fail("the browser has gone");
    if (size > 0) sent += static_cast<std::size_t>(size);
  }
}

Browser::Json Browser::Receive() {
  std::size_t searched = 0;
  for (;;) {
    const std::size_t end = received_.find('\0', searched);
    if (end != std::string::npos) {
      Json message = Json::parse(received_.substr(0, end));
      received_.erase(0, end + 1);
      if (message.value("method", "") == "Page.lifecycleEvent" && message.at("params").at("name") == "load") {
        loaded_ = message.at("params").at("loaderId");
      }
      return message;
    }
    searched = received_.size();
    pollfd answers = {.fd = fromBrowser_, .events = POLLIN, .revents = 0};
    std::array<char, 65536> buffer{};
    const int ready = poll(&answers, 1, kPatience);
    if (ready < 0 && errno == EINTR) continue;
    const ssize_t size = ready == 1 ? read(fromBrowser_, buffer.data(), buffer.size()) : 0;
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) throw std::runtime_error("the browser says nothing more: " + ReadFile(folder_ / "log"));
    received_.append(buffer.data(), static_cast<std::size_t>(size));
  }
}
