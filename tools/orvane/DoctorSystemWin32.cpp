// What machine and process this is: what Windows shows differs by it.

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "DoctorExamination.h"

namespace orvane::tool {
namespace {

struct Name {
  DWORD number;
  const wchar_t* text;
};

std::wstring NameOf(DWORD number, std::initializer_list<Name> names) {
  const auto found = std::ranges::find(names, number, &Name::number);
  return found != names.end() ? found->text : L"unknown (" + std::to_wstring(number) + L")";
}

std::wstring Architecture() {
  SYSTEM_INFO info{};
  GetNativeSystemInfo(&info);
  return NameOf(info.wProcessorArchitecture, {{PROCESSOR_ARCHITECTURE_AMD64, L"x64"},
                                              {PROCESSOR_ARCHITECTURE_INTEL, L"x86"},
                                              {12, L"ARM64"}});
}

/// The right side of the process's mandatory label; 0 when the system does not tell.
DWORD IntegrityLevel() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) return 0;
  std::vector<std::byte> label(256);
  DWORD size = 0;
  DWORD level = 0;
  if (GetTokenInformation(token, TokenIntegrityLevel, label.data(),
                          static_cast<DWORD>(label.size()), &size)) {
    const PSID sid = reinterpret_cast<TOKEN_MANDATORY_LABEL*>(label.data())->Label.Sid;
    const DWORD last = static_cast<DWORD>(*GetSidSubAuthorityCount(sid) - 1);
    level = *GetSidSubAuthority(sid, last);
  }
  CloseHandle(token);
  return level;
}

}  // namespace

void CheckSystem(Examination& examination) {
  const SystemInfo::Version version = examination.desktop.system.OsVersion();
  examination.report.Fine(L"Windows " + std::to_wstring(version.major) + L"." +
                          std::to_wstring(version.minor) + L" build " +
                          std::to_wstring(version.build) + L", " + Architecture() +
                          L", code page " + std::to_wstring(GetACP()));
  const std::wstring level = NameOf(IntegrityLevel(), {{0, L"not told"},
                                                       {0x1000, L"low"},
                                                       {0x2000, L"medium"},
                                                       {0x2100, L"medium plus"},
                                                       {0x3000, L"high (administrator)"},
                                                       {0x4000, L"system"}});
  examination.report.Fine(L"integrity level: " + level);
}

}  // namespace orvane::tool
