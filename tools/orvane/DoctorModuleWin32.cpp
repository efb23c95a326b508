// The DLL as a file: is it there, for this machine, of which version, signed?

#include <windows.h>

#include <softpub.h>
#include <wintrust.h>

#include <cstring>
#include <vector>

#include "DoctorExamination.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

/// The machine that a program's header names; 0 for what is no program.
std::uint16_t MachineOf(const std::vector<std::byte>& file) {
  IMAGE_DOS_HEADER dos{};
  if (file.size() < sizeof dos) return 0;
  std::memcpy(&dos, file.data(), sizeof dos);
  const auto offset = static_cast<std::size_t>(dos.e_lfanew);
  IMAGE_NT_HEADERS64 headers{};
  if (dos.e_magic != IMAGE_DOS_SIGNATURE || dos.e_lfanew < 0 || offset > file.size() ||
      file.size() - offset < sizeof headers)
    return 0;
  std::memcpy(&headers, file.data() + offset, sizeof headers);
  return headers.Signature == IMAGE_NT_SIGNATURE ? headers.FileHeader.Machine : 0;
}

/// Version and commit as the DLL's resource tells them; empty when it has none.
std::wstring VersionOf(const std::wstring& path) {
  DWORD ignored = 0;
  std::vector<std::byte> block(GetFileVersionInfoSizeW(path.c_str(), &ignored));
  wchar_t* text = nullptr;
  UINT length = 0;
  if (block.empty() ||
      !GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) ||
      !VerQueryValueW(block.data(), L"\\StringFileInfo\\040904E4\\ProductVersion",
                      reinterpret_cast<void**>(&text), &length))
    return {};
  return text;
}

LONG SignatureOf(const std::wstring& path) {
  WINTRUST_FILE_INFO file{};
  file.cbStruct = sizeof file;
  file.pcwszFilePath = path.c_str();
  WINTRUST_DATA data{};
  data.cbStruct = sizeof data;
  data.dwUIChoice = WTD_UI_NONE;
  data.fdwRevocationChecks = WTD_REVOKE_NONE;
  data.dwUnionChoice = WTD_CHOICE_FILE;
  data.pFile = &file;
  data.dwProvFlags = WTD_CACHE_ONLY_URL_RETRIEVAL;  // asks no server
  GUID action = WINTRUST_ACTION_GENERIC_VERIFY_V2;
  return WinVerifyTrust(nullptr, &action, &data);
}

void TellSignature(DoctorReport& report, LONG status) {
  if (status == ERROR_SUCCESS) return report.Fine(L"signed, and Windows trusts the signature");
  if (status == TRUST_E_BAD_DIGEST)
    return report.Fault(L"changed since it was signed", InstallAgain);
  if (status == TRUST_E_NOSIGNATURE) return report.Fine(L"not signed");
  wchar_t code[16];
  swprintf(code, 16, L"0x%08lX", static_cast<unsigned long>(status));
  report.Note(std::wstring(L"Windows does not trust its signature or finds none: ") + code);
}

void TellVersion(DoctorReport& report, const std::wstring& version) {
  report.Fine(L"version " + (version.empty() ? L"not told" : version));
  const std::wstring own = *FromUtf8(ORVANE_VERSION);
  if (!version.starts_with(own)) report.Note(L"this program is version " + own, InstallAgain);
}

}  // namespace

void CheckModule(Examination& examination) {
  DoctorReport& report = examination.report;
  if (examination.library.empty()) return report.Note(L"not examined: none is registered");
  const auto file = examination.desktop.files.Read(examination.library);
  if (file && MachineOf(*file) == IMAGE_FILE_MACHINE_AMD64) {
    TellVersion(report, VersionOf(examination.library));
    return TellSignature(report, SignatureOf(examination.library));
  }
  examination.worthTrying = false;
  const wchar_t* what = file ? L"is no DLL for 64-bit Windows: " : L"cannot be read: ";
  report.Fault(what + examination.library, InstallAgain);
}

}  // namespace orvane::tool
