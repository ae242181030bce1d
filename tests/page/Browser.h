#pragma once

#include <sys/types.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "support/TemporaryFolder.h"

// The installed Chromium without a window, with a profile of its own, driven over the pipe of its DevTools
// protocol. Linux only. Everything throws when the browser refuses or says nothing for a minute.
class Browser {
public:
  using Json = nlohmann::json;

  Browser();
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;
  ~Browser();

  // What the next pages see: "light" or "dark", "screen" or "print", and whether their scripts run.
  void SetMedia(const std::string& scheme, const std::string& media = "screen");
  void AllowScripts(bool allowed) { scripts_ = allowed; }

  // Opens the file in a new tab, in place of the one before, with what stands behind "#" in its address, and
  // waits until it is loaded and its script has run.
  void Open(const std::filesystem::path& file, const std::string& fragment = "");

  // The value of a JavaScript expression in the page; that of a promise is waited for.
  Json Run(const std::string& expression);

  // Presses and releases a key, such as "ArrowDown" or "Tab".
  void Press(const std::string& key);
  // Moves the mouse to the middle of the first element that the selector finds, or clicks there.
  void PointAt(const std::string& selector);
  void Click(const std::string& selector);

  // What a screen reader is told of the page: the nodes that are not ignored, in order.
  Json AccessibilityNodes();

  // Calls a method of the protocol for the open tab.
  Json Call(const std::string& method, const Json& parameters = Json::object());

private:
  void Start();
  Json MiddleOf(const std::string& selector);
  void Mouse(const std::string& type, const Json& point);
  Json CallWith(Json message);
  void Send(const std::string& message);
  // The next answer or event.
  Json Receive();

  TemporaryFolder folder_;
  pid_t process_ = 0;
  int toBrowser_ = -1;
  int fromBrowser_ = -1;
  std::string received_;
  int lastCall_ = 0;
  std::string target_;
  std::string session_;
  Json media_;
  bool scripts_ = true;
  // Which load of a page was the last to be complete.
  std::string loaded_;
};
