// What the test of the setup needs besides the setup: a program that holds a DLL, and one that runs
// another, with its own rights or without an administrator's.

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

/// Holds the DLL until it is ended.
int Hold(const wchar_t* library) {
  if (!LoadLibraryW(library)) return 1;
  std::puts("held");
  std::fflush(stdout);
  Sleep(120'000);
  return 0;
}

/// A token of this process's user in which the administrators' group only denies.
HANDLE LimitedToken() {
  HANDLE own = nullptr;
  HANDLE limited = nullptr;
  OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own);
  BYTE administrators[SECURITY_MAX_SID_SIZE];
  DWORD size = sizeof administrators;
  CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators, &size);
  SID_AND_ATTRIBUTES disabled{administrators, 0};
  CreateRestrictedToken(own, 0, 1, &disabled, 0, nullptr, 0, nullptr, &limited);
  CloseHandle(own);
  return limited;
}

/// Runs the command line, with the token unless that is null; answers its exit code.
int Run(std::wstring commandLine, HANDLE token) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (!CreateProcessAsUserW(token, nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                            nullptr, &startup, &process)) {
    std::printf("cannot be started: %lu\n", GetLastError());
    return 99;
  }
  WaitForSingleObject(process.hProcess, 60'000);
  DWORD code = 98;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(code);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const std::wstring mode = count == 3 ? arguments[1] : L"";
  if (mode == L"hold") return Hold(arguments[2]);
  if (mode == L"run") return Run(arguments[2], nullptr);
  if (mode == L"limited") return Run(arguments[2], LimitedToken());
  std::puts("setup_helper hold DLL | run COMMANDLINE | limited COMMANDLINE");
  return 97;
}
