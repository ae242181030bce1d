#pragma once

// The part of the Windows interface that component libraries use, for POSIX: the same names, the same
// layouts, the same behaviour. What differs from Windows is not declared.

#include <cstddef>
#include <cstdint>

using BOOL = int;
using DWORD = std::uint32_t;
using WORD = std::uint16_t;
using BYTE = unsigned char;
using LONG = std::int32_t;
using HRESULT = LONG;
using HANDLE = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using LPDWORD = DWORD*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPBYTE = BYTE*;

#define WINAPI
#define TRUE 1
#define FALSE 0
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(-1)))

#define S_OK (static_cast<HRESULT>(0))
#define S_FALSE (static_cast<HRESULT>(1))
#define E_FAIL (static_cast<HRESULT>(0x80004005))
#define SUCCEEDED(result) (static_cast<HRESULT>(result) >= 0)
#define FAILED(result) (static_cast<HRESULT>(result) < 0)

#define STD_INPUT_HANDLE (static_cast<DWORD>(-10))
#define STD_OUTPUT_HANDLE (static_cast<DWORD>(-11))
#define STD_ERROR_HANDLE (static_cast<DWORD>(-12))

#define HANDLE_FLAG_INHERIT 0x00000001
#define STARTF_USESTDHANDLES 0x00000100
#define CREATE_NO_WINDOW 0x08000000

struct SECURITY_ATTRIBUTES {
  DWORD nLength;
  LPVOID lpSecurityDescriptor;
  BOOL bInheritHandle;
};
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

struct STARTUPINFOW {
  DWORD cb;
  LPWSTR lpReserved;
  LPWSTR lpDesktop;
  LPWSTR lpTitle;
  DWORD dwX;
  DWORD dwY;
  DWORD dwXSize;
  DWORD dwYSize;
  DWORD dwXCountChars;
  DWORD dwYCountChars;
  DWORD dwFillAttribute;
  DWORD dwFlags;
  WORD wShowWindow;
  WORD cbReserved2;
  LPBYTE lpReserved2;
  HANDLE hStdInput;
  HANDLE hStdOutput;
  HANDLE hStdError;
};
using LPSTARTUPINFOW = STARTUPINFOW*;

struct PROCESS_INFORMATION {
  HANDLE hProcess;
  HANDLE hThread;
  DWORD dwProcessId;
  DWORD dwThreadId;
};
using LPPROCESS_INFORMATION = PROCESS_INFORMATION*;

struct OVERLAPPED;
using LPOVERLAPPED = OVERLAPPED*;

static_assert(sizeof(SECURITY_ATTRIBUTES) == 24);
static_assert(sizeof(STARTUPINFOW) == 104);

extern "C" {

// Pipes, processes and their handles. All give 0 on failure, also for a handle that is not open. What is
// asked for beyond the standard handles, a folder and a command line (an environment, overlapped work)
// fails too.
BOOL CreatePipe(HANDLE* readEnd, HANDLE* writeEnd, LPSECURITY_ATTRIBUTES attributes, DWORD size);
BOOL SetHandleInformation(HANDLE handle, DWORD mask, DWORD flags);
BOOL CreateProcessW(LPCWSTR application, LPWSTR commandLine, LPSECURITY_ATTRIBUTES processAttributes,
                    LPSECURITY_ATTRIBUTES threadAttributes, BOOL inheritHandles, DWORD flags,
                    LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW startup,
                    LPPROCESS_INFORMATION process);
// Waits until there is something to read; fails when nothing is left and the other end is closed.
BOOL ReadFile(HANDLE handle, LPVOID buffer, DWORD size, LPDWORD read, LPOVERLAPPED overlapped);
BOOL WriteFile(HANDLE handle, LPCVOID buffer, DWORD size, LPDWORD written, LPOVERLAPPED overlapped);
BOOL CloseHandle(HANDLE handle);
// Of this process's standard streams, which keep it: it cannot be closed.
HANDLE GetStdHandle(DWORD which);

// Whether a character of two bytes can start with that byte, in the code page of this process.
BOOL IsDBCSLeadByte(BYTE byte);

// To whoever listens on the debugger channel: one call, one message.
void OutputDebugStringW(LPCWSTR message);

// The Windows C runtime's own functions; on Windows they come with <sys/stat.h>.
struct _stat64i32 {
  std::uint16_t st_mode;
  std::int32_t st_size;
};
#define _S_IFMT 0xF000
#define _S_IFDIR 0x4000
#define _S_IREAD 0x0100
#define _S_IWRITE 0x0080
// 0, or -1 when there is no such file, which leaves `result` as it is; `path` is separated by "\". Sizes
// that do not fit are cut to the largest that does.
int _stat64i32(const char* path, struct _stat64i32* result);

}  // extern "C"

// Of the C library, `clock`, `fopen` and `wprintf` behave as on Windows wherever this library is linked:
// wall-clock milliseconds; paths separated by "\" and text mode; any mix with narrow output.
