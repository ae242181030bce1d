#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <windows.h>
#include <csignal>
#include <cstdlib>

#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "OpenDescriptors.h"
#include "RedirectedStream.h"
#include "TestChild.h"
#include "TestFiles.h"
#include "core/HostPath.h"
#include "support/EnvironmentVariable.h"
#include "text/NativeText.h"
#include "windows/LaunchLog.h"
#include "windows/WindowsControl.h"

using standin::LiveChildCount;

namespace {

std::wstring HostName(const std::filesystem::path& path) {
  return standin::WideFromNative(standin::HostPath(path));
}

bool AllEnded() {
  return Eventually([] { return LiveChildCount() == 0; });
}

// What the child finds as its arguments, each closed by a NUL.
std::string ArgumentsSeen(const std::wstring& commandLine) {
  return TestChild(L"\\bin\\cat", commandLine).Finish();
}

}  // namespace

TEST(CreateProcess, RunsAProgramBetweenPipes) {
  TestChild child(L"\\bin\\cat", L"cat");
  ASSERT_NE(child.Id, 0u);
  EXPECT_TRUE(child.Input.Write("through and through"));
  EXPECT_EQ(child.Finish(), "through and through");
}

TEST(CreateProcess, RunsItInTheFolderGiven) {
  const TemporaryFolder folder;
  TestChild child(L"\\bin\\pwd", L"pwd -P", HostName(folder.Path()).c_str());
  EXPECT_EQ(child.Finish(), std::filesystem::canonical(folder.Path()).string() + "\n");
}

TEST(CreateProcess, TakesAFolderWithAClosingBackslash) {
  TestChild child(L"\\bin\\pwd", L"pwd", L"\\usr\\bin\\");
  EXPECT_THAT(child.Finish(), testing::StartsWith("/usr/bin"));
}

TEST(CreateProcess, RunsItInTheHostsFolderWhenNoneIsGiven) {
  TestChild child(L"\\bin\\pwd", L"pwd -P");
  EXPECT_EQ(child.Finish(), std::filesystem::current_path().string() + "\n");
}

TEST(CreateProcess, TakesProgramAndFolderWhoseNamesAreNoUtf8) {
  const TemporaryFolder scratch;
  const std::filesystem::path folder = scratch / "f\xE4\xFF";
  std::filesystem::create_directory(folder);
  std::filesystem::create_symlink("/bin/pwd", folder / "p\xFC");
  TestChild child(HostName(folder / "p\xFC").c_str(), L"pwd -P", HostName(folder).c_str());
  EXPECT_EQ(child.Finish(), std::filesystem::canonical(folder).string() + "\n");
}

TEST(CreateProcess, LooksForARelativeProgramFromTheHostsFolder) {
  const TemporaryFolder scratch;
  std::filesystem::create_symlink("/bin/pwd", scratch / "program");
  const std::filesystem::path program =
      scratch.Path().lexically_relative(std::filesystem::current_path()) / "program";
  TestChild child(HostName(program).c_str(), L"pwd", L"\\usr\\lib");
  EXPECT_EQ(child.Finish(), "/usr/lib\n");
}

TEST(CreateProcess, FailsWhereThereIsNoSuchProgramOrFolder) {
  const TemporaryFolder scratch;
  const std::wstring file = HostName(AddFile(scratch, "plain.txt", "text"));
  const std::wstring folder = HostName(scratch.Path());
  const std::wstring pipe = HostName(scratch / "pipe");
  ASSERT_EQ(mkfifo((scratch / "pipe").c_str(), 0700), 0);
  ASSERT_TRUE(AllEnded());
  const int handles = standin::OpenHandleCount();
  const std::set<int> descriptors = OpenDescriptors();

  EXPECT_EQ(Launch(nullptr, L"\\bin\\true"), 0u) << "no program";
  EXPECT_EQ(Launch(L"", L"\\bin\\true"), 0u) << "empty program";
  EXPECT_EQ(Launch(L"\\bin\\no-such-program", L"p"), 0u) << "missing program";
  EXPECT_EQ(Launch(file.c_str(), L"p"), 0u) << "program that is not executable";
  EXPECT_EQ(Launch(folder.c_str(), L"p"), 0u) << "folder as program";
  EXPECT_EQ(Launch(pipe.c_str(), L"p"), 0u) << "something else as program";
  EXPECT_EQ(Launch(L"\\bin\\true", L"p", {}, L""), 0u) << "empty folder";
  EXPECT_EQ(Launch(L"\\bin\\true", L"p", {}, (folder + L"\\none").c_str()), 0u) << "missing folder";
  EXPECT_EQ(Launch(L"\\bin\\true", L"p", {}, file.c_str()), 0u) << "file as folder";

  EXPECT_EQ(LiveChildCount(), 0);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a failed start left a process behind";
  EXPECT_EQ(standin::OpenHandleCount(), handles);
  EXPECT_EQ(OpenDescriptors(), descriptors);
}

TEST(CreateProcess, GivesHandlesOfProcessAndThreadToBeClosed) {
  STARTUPINFOW startup{};
  PROCESS_INFORMATION process{};
  const int before = standin::OpenHandleCount();
  std::wstring commandLine = L"true";
  ASSERT_TRUE(CreateProcessW(L"\\bin\\true", commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                             &startup, &process));
  EXPECT_EQ(standin::OpenHandleCount(), before + 2);
  EXPECT_NE(process.hProcess, process.hThread);
  char byte = 0;
  DWORD count = 0;
  EXPECT_FALSE(ReadFile(process.hProcess, &byte, 1, &count, nullptr));
  EXPECT_FALSE(WriteFile(process.hThread, &byte, 1, &count, nullptr));
  EXPECT_TRUE(CloseHandle(process.hProcess));
  EXPECT_TRUE(CloseHandle(process.hThread));
  EXPECT_FALSE(CloseHandle(process.hProcess));
  EXPECT_EQ(standin::OpenHandleCount(), before);
}

TEST(CreateProcess, SplitsTheCommandLineForTheChild) {
  EXPECT_EQ(ArgumentsSeen(L" /proc/self/cmdline"), std::string("\0/proc/self/cmdline\0", 20));
  EXPECT_EQ(ArgumentsSeen(L"\"a b\" \"/proc/self/cmdline\""), std::string("a b\0/proc/self/cmdline\0", 23));
}

TEST(CreateProcess, HandsArgumentsOverByteByByte) {
  const std::string bytes = "\xC3\xA4\xF0\x9F\x94\xA7 \xE4 \xFF\xFE \\sub\\x";
  TestChild child(L"\\bin\\cat", standin::WideFromNative("cat /proc/self/cmdline -- " + bytes));
  std::string expected = "cat /proc/self/cmdline -- " + bytes + " ";
  for (char& byte : expected) byte = byte == ' ' ? '\0' : byte;
  EXPECT_THAT(child.Finish(), testing::StartsWith(expected));
}

TEST(CreateProcess, TakesTheProgramsNameWhereThereIsNoCommandLine) {
  TestPipe output(true);
  STARTUPINFOW startup = StandardHandles(nullptr, output.Writing, nullptr);
  PROCESS_INFORMATION process{};
  ASSERT_TRUE(CreateProcessW(L"\\bin\\pwd", nullptr, nullptr, nullptr, TRUE, 0, nullptr, L"\\usr", &startup,
                             &process));
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
  output.CloseWriting();
  EXPECT_EQ(output.ReadAll(), "/usr\n");
}

TEST(CreateProcess, HandsTheEnvironmentOver) {
  const EnvironmentVariable variable("HOST_VARIABLE", "its value");
  EXPECT_EQ(TestChild(L"\\bin\\sh", Script(L"echo $HOST_VARIABLE")).Finish(), "its value\n");
}

TEST(CreateProcess, GivesTheChildNothingButTheStandardDescriptors) {
  const int exposed = open("/dev/null", O_RDONLY);  // on purpose not closed on exec
  const TestPipe inheritable(true);
  TestChild child(L"\\bin\\ls", L"ls /proc/self/fd");
  EXPECT_EQ(child.Finish(), "0\n1\n2\n3\n") << "3 is the folder that is being listed";
  close(exposed);
}

TEST(CreateProcess, KeepsHandlesThatAreNotInheritableFromTheChild) {
  TestPipe output(true);
  TestPipe error(true);
  SetHandleInformation(output.Writing, HANDLE_FLAG_INHERIT, 0);
  const std::wstring script = Script(L"for n in 0 1 2; do [ -L /proc/$$/fd/$n ] || echo $n >&2; done");
  ASSERT_NE(Launch(L"\\bin\\sh", script, StandardHandles(nullptr, output.Writing, error.Writing)), 0u);
  output.CloseWriting();
  error.CloseWriting();
  EXPECT_EQ(error.ReadAll(), "0\n1\n");
  EXPECT_EQ(output.ReadAll(), "");
}

TEST(CreateProcess, TakesAHandleThatWasMadeInheritableLater) {
  TestPipe output(false);
  SetHandleInformation(output.Writing, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
  ASSERT_NE(Launch(L"\\bin\\echo", L"echo here", StandardHandles(nullptr, output.Writing, nullptr)), 0u);
  output.CloseWriting();
  EXPECT_EQ(output.ReadAll(), "here\n");
}

TEST(CreateProcess, GivesTheChildNoStandardHandlesWithoutInheritance) {
  const TemporaryFolder scratch;
  TestPipe output(true);
  const std::wstring script =
      Script(L"m=; for n in 0 1 2; do [ -L /proc/$$/fd/$n ] || m=$m$n; done; echo $m > found");
  const STARTUPINFOW startup = StandardHandles(output.Reading, output.Writing, output.Writing);
  ASSERT_NE(Launch(L"\\bin\\sh", script, startup, HostName(scratch.Path()).c_str(), false), 0u);
  output.CloseWriting();
  ASSERT_TRUE(AllEnded());
  std::string found;
  std::ifstream(scratch / "found") >> found;
  EXPECT_EQ(found, "012");
}

TEST(CreateProcess, TakesTheHostsStandardHandlesInAnyOrder) {
  const RedirectedStream output(STDOUT_FILENO);
  const RedirectedStream error(STDERR_FILENO);
  const STARTUPINFOW crossed =
      StandardHandles(nullptr, GetStdHandle(STD_ERROR_HANDLE), GetStdHandle(STD_OUTPUT_HANDLE));
  EXPECT_NE(Launch(L"\\bin\\sh", Script(L"echo out; echo err >&2"), crossed), 0u);
  EXPECT_TRUE(AllEnded());
  EXPECT_EQ(output.Text(), "err\n");
  EXPECT_EQ(error.Text(), "out\n");
}

TEST(CreateProcess, SharesTheHostsStandardStreamsWhenNoneAreGiven) {
  const RedirectedStream output(STDOUT_FILENO);
  EXPECT_NE(Launch(L"\\bin\\echo", L"echo shared"), 0u);
  EXPECT_TRUE(AllEnded());
  EXPECT_EQ(output.Text(), "shared\n");
}

TEST(CreateProcess, StartsTheChildWithNoSignalBlockedAndBrokenPipesDeadly) {
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGUSR1);
  pthread_sigmask(SIG_BLOCK, &blocked, &before);
  const auto handlerBefore = signal(SIGPIPE, SIG_IGN);
  TestChild child(L"\\bin\\cat", L"cat /proc/self/status");
  const std::string status = child.Finish();
  signal(SIGPIPE, handlerBefore);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);

  EXPECT_THAT(status, testing::HasSubstr("SigBlk:\t0000000000000000\n"));
  const std::string name = "SigIgn:\t";
  ASSERT_THAT(status, testing::HasSubstr(name));
  const unsigned long long ignored =
      std::stoull(status.substr(status.find(name) + name.size(), 16), nullptr, 16);
  EXPECT_EQ(ignored >> (SIGPIPE - 1) & 1, 0u);
}

TEST(CreateProcess, WritingToAChildThatHasEndedFails) {
  TestChild child(L"\\bin\\true", L"true");
  ASSERT_TRUE(AllEnded());
  EXPECT_FALSE(child.Input.Write("yes\n"));
}

TEST(CreateProcess, EndsTheOutputWithTheChild) {
  TestChild first(L"\\bin\\cat", L"cat");
  TestChild second(L"\\bin\\cat", L"cat");  // must not hold the pipes of the first
  EXPECT_EQ(first.Finish(), "");
  EXPECT_EQ(second.Finish(), "");
}

TEST(Children, AreCountedWhileTheyLive) {
  ASSERT_TRUE(AllEnded());
  TestChild child(L"\\bin\\cat", L"cat");
  EXPECT_EQ(LiveChildCount(), 1);
  EXPECT_TRUE(child.Input.Write("a"));
  EXPECT_EQ(LiveChildCount(), 1);
  child.Finish();
  EXPECT_TRUE(AllEnded());
}

TEST(Children, LeaveNoZombieThoughNobodyWaits) {
  TestChild child(L"\\bin\\true", L"true");
  ASSERT_NE(child.Id, 0u);
  EXPECT_TRUE(Eventually([&] { return !ProcessExists(child.Id); }));
}

TEST(Children, LeaveNoZombieWhileAnOlderOneLives) {
  TestChild older(L"\\bin\\cat", L"cat");
  TestChild younger(L"\\bin\\true", L"true");
  EXPECT_TRUE(Eventually([&] { return !ProcessExists(younger.Id); }));
  EXPECT_TRUE(ProcessExists(older.Id));
}

TEST(Children, LeaveNoZombieWhenNoDescriptorIsLeft) {
  TestChild(L"\\bin\\true", L"true").Finish();
  ASSERT_TRUE(AllEnded());
  TestPipe input(true);
  const TestPipe output(true);
  const int last = open("/dev/null", O_RDONLY | O_CLOEXEC);
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  rlimit none = before;
  none.rlim_cur = static_cast<rlim_t>(last) + 1;
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  const int refused = dup(last);
  const DWORD child =
      Launch(L"\\bin\\cat", L"cat", StandardHandles(input.Reading, output.Writing, output.Writing));
  setrlimit(RLIMIT_NOFILE, &before);
  close(last);
  EXPECT_EQ(refused, -1);
  ASSERT_NE(child, 0u);

  // Once another one is gone it is certain that this one was looked at while it lived.
  TestChild other(L"\\bin\\true", L"true");
  EXPECT_TRUE(Eventually([&] { return !ProcessExists(other.Id); }));
  EXPECT_TRUE(ProcessExists(child));
  input.CloseReading();
  input.CloseWriting();
  EXPECT_TRUE(Eventually([&] { return !ProcessExists(child); }));
}

TEST(Children, OfTheHostItselfAreLeftToIt) {
  const pid_t own = fork();
  if (own == 0) _exit(42);
  TestChild child(L"\\bin\\true", L"true");
  EXPECT_TRUE(Eventually([&] { return !ProcessExists(child.Id); }));
  EXPECT_TRUE(AllEnded());
  int status = 0;
  ASSERT_EQ(waitpid(own, &status, 0), own);
  EXPECT_EQ(WEXITSTATUS(status), 42);
}

TEST(Children, ThatTheHostCollectedAreNoLongerCounted) {
  struct sigaction ignored {};
  struct sigaction before = {};
  ignored.sa_handler = SIG_IGN;  // the system collects them itself
  sigaction(SIGCHLD, &ignored, &before);
  TestChild child(L"\\bin\\true", L"true");
  EXPECT_TRUE(AllEnded());
  sigaction(SIGCHLD, &before, nullptr);
}

TEST(Children, DoNotChangeWhatTheHostDoesOnTheirEnd) {
  static volatile sig_atomic_t ends;
  ends = 0;
  struct sigaction counting {};
  struct sigaction before = {};
  struct sigaction after = {};
  counting.sa_handler = [](int) { ends = ends + 1; };
  counting.sa_flags = SA_RESTART;
  sigaction(SIGCHLD, &counting, &before);
  TestChild child(L"\\bin\\true", L"true");
  EXPECT_TRUE(Eventually([] { return ends > 0; }));
  sigaction(SIGCHLD, &before, &after);
  EXPECT_EQ(after.sa_handler, counting.sa_handler);
}

TEST(Children, LeaveNoDescriptorBehind) {
  TestChild(L"\\bin\\true", L"true").Finish();
  ASSERT_TRUE(AllEnded());
  const int handles = standin::OpenHandleCount();
  const std::set<int> descriptors = OpenDescriptors();
  for (int i = 0; i < 1000; ++i) {
    TestChild child(L"\\bin\\true", L" -d x status");
    ASSERT_NE(child.Id, 0u) << i;
    ASSERT_EQ(child.Finish(), "");
  }
  ASSERT_TRUE(AllEnded());
  EXPECT_EQ(standin::OpenHandleCount(), handles);
  EXPECT_EQ(OpenDescriptors(), descriptors);
}

TEST(ChildrenDeathTest, ThatStillLiveDoNotHinderTheHostsEnd) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        TestChild child(L"\\bin\\cat", L"cat");
        if (LiveChildCount() == 1) std::exit(17);
      },
      testing::ExitedWithCode(17), "");
}

TEST(LaunchLog, HearsOfEveryCallWithItsArgumentsAsPassed) {
  std::vector<standin::Launch> heard;
  standin::SetLaunchListener([&](const standin::Launch& launch) { heard.push_back(launch); });
  Launch(L"\\bin\\true", L" -d \"a\\b\"  status\x1F527", {}, L"\\usr\\");
  Launch(L"\\no\\such", L"x");
  Launch(nullptr, L"y", {}, L"");
  standin::FailWindowsCall(standin::WindowsCall::CreateProcess, 0);
  Launch(L"\\bin\\true", L"z");
  standin::SetLaunchListener(nullptr);
  Launch(L"\\bin\\true", L"unheard");

  ASSERT_EQ(heard.size(), 4u);
  EXPECT_EQ(heard[0].Program, L"\\bin\\true");
  EXPECT_EQ(heard[0].CommandLine, L" -d \"a\\b\"  status\x1F527");
  EXPECT_EQ(heard[0].Folder, L"\\usr\\");
  EXPECT_EQ(heard[0].CreationFlags, CREATE_NO_WINDOW);
  EXPECT_TRUE(heard[0].Started);
  EXPECT_EQ(heard[1].Program, L"\\no\\such");
  EXPECT_FALSE(heard[1].Started);
  EXPECT_EQ(heard[2].Program, L"");
  EXPECT_EQ(heard[2].Folder, L"");
  EXPECT_FALSE(heard[2].Started);
  EXPECT_EQ(heard[3].CommandLine, L"z");
  EXPECT_FALSE(heard[3].Started);
}

TEST(LaunchLog, KeepsItsListenersExceptionsFromTheCaller) {
  standin::SetLaunchListener([](const standin::Launch&) { throw std::runtime_error("listener"); });
  EXPECT_NE(Launch(L"\\bin\\true", L"true"), 0u);
  standin::SetLaunchListener(nullptr);
}
