// Right-clicks through COM: does the menu appear, does the handler keep to what the shell expects,
// how long does it take, does it leave anything behind?

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "DoctorExamination.h"
#include "DoctorProbe.h"
#include "win32/ComPointer.h"

namespace orvane::tool {
namespace {

/// The thread's stay in an apartment.
struct Apartment {
  Apartment() { OleInitialize(nullptr); }
  ~Apartment() { OleUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

std::wstring TextOf(long result) {
  wchar_t text[16];
  swprintf(text, 16, L"0x%08lX", static_cast<unsigned long>(result));
  return text;
}

std::wstring Milliseconds(double time) {
  wchar_t text[32];
  swprintf(text, 32, L"%.1f ms", time);
  return text;
}

/// What the current user has as a folder or file of Windows.
std::wstring WindowsFolder() {
  wchar_t path[MAX_PATH] = L"";
  GetWindowsDirectoryW(path, MAX_PATH);
  return path;
}

/// A link in the temporary folder; gone with the object.
class TemporaryLink {
 public:
  TemporaryLink() {
    wchar_t folder[MAX_PATH + 1] = L"";
    GetTempPathW(MAX_PATH + 1, folder);
    m_path = folder + (L"orvane-doctor-" + std::to_wstring(GetCurrentProcessId()) + L".lnk");
    win32::ComPointer<IShellLinkW> link;
    win32::ComPointer<IPersistFile> file;
    if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                   reinterpret_cast<void**>(link.Out()))) &&
        SUCCEEDED(link->SetPath(WindowsFolder().c_str())) &&
        SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Out()))))
      file->Save(m_path.c_str(), FALSE);
  }
  ~TemporaryLink() { DeleteFileW(m_path.c_str()); }
  TemporaryLink(const TemporaryLink&) = delete;
  TemporaryLink& operator=(const TemporaryLink&) = delete;

  const std::wstring& Path() const { return m_path; }

 private:
  std::wstring m_path;
};

constexpr wchar_t SendReport[] = L"send this report to the makers";

struct Promise {
  bool (DoctorProbe::*kept)() const;
  const wchar_t* fault;
};
constexpr Promise Promises[] = {
    {&DoctorProbe::HasPopup, L"the menu does not appear"},
    {&DoctorProbe::IdentifiersInRange, L"an entry has an identifier that belongs to others"},
    {&DoctorProbe::TerminatesTexts, L"a help text does not end where its buffer does"},
    {&DoctorProbe::RefusesForeignVerb, L"a command is taken for its own that is not"},
};

/// False when a step failed, which is told.
bool Succeeded(DoctorReport& report, const std::wstring& what, const DoctorProbe& probe) {
  const std::pair<long, const wchar_t*> steps[] = {{probe.created, L"the handler cannot be made"},
                                                   {probe.initialized, L"Initialize fails"},
                                                   {probe.queried, L"QueryContextMenu fails"}};
  for (const auto& [result, fault] : steps) {
    if (SUCCEEDED(result)) continue;
    report.Fault(what + L": " + fault + L", " + TextOf(result), InstallAgain);
    return false;
  }
  return true;
}

bool CheckClick(DoctorReport& report, const std::wstring& what, const std::wstring& path,
                bool background = false) {
  const DoctorProbe probe(path, background);
  if (!Succeeded(report, what, probe)) return false;
  const int before = report.Faults();
  for (const Promise& promise : Promises) {
    if (!(probe.*promise.kept)()) report.Fault(what + L": " + promise.fault, SendReport);
  }
  if (report.Faults() == before)
    report.Fine(what + L": Initialize " + Milliseconds(probe.initializing) +
                L", QueryContextMenu " + Milliseconds(probe.querying));
  return report.Faults() == before;
}

/// What this process holds of the system.
using Holdings = std::array<DWORD, 4>;
constexpr std::array<const wchar_t*, 4> HoldingNames = {L"handles", L"GDI objects", L"USER objects",
                                                        L"TLS slots"};

Holdings Count() {
  DWORD handles = 0;
  GetProcessHandleCount(GetCurrentProcess(), &handles);
  const DWORD slot = TlsAlloc();
  TlsFree(slot);
  return {handles, GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS),
          GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), slot};
}

void Repeat(const std::wstring& path, int rounds) {
  for (int i = 0; i < rounds; ++i) {
    DoctorProbe(path, false);
    CoFreeUnusedLibraries();  // as a host does that is not Explorer
  }
}

void CheckEndurance(DoctorReport& report, const std::wstring& path) {
  constexpr int Rounds = 200;
  Repeat(path, 20);  // caches fill
  const Holdings before = Count();
  Repeat(path, Rounds);
  const Holdings after = Count();
  std::wstring text;
  bool grows = false;
  for (std::size_t i = 0; i < before.size(); ++i) {
    text += std::wstring(i ? L", " : L"") + HoldingNames[i] + L" " + std::to_wstring(before[i]) +
            L" -> " + std::to_wstring(after[i]);
    grows = grows || after[i] > before[i] + Rounds / 10;
  }
  text = std::to_wstring(Rounds) + L" right-clicks: " + text;
  if (grows)
    report.Fault(text, SendReport);
  else
    report.Fine(text);
}

}  // namespace

void CheckRightClicks(Examination& examination) {
  DoctorReport& report = examination.report;
  if (!examination.worthTrying)
    return report.Note(L"not tried", L"put right what is said above, then examine again");
  const Apartment apartment;
  const TemporaryLink link;
  const std::wstring folder = WindowsFolder();
  const bool works = CheckClick(report, L"file", folder + L"\\win.ini") &&
                     CheckClick(report, L"folder", folder) &&
                     CheckClick(report, L"drive", folder.substr(0, 3)) &&
                     CheckClick(report, L"background", folder, true) &&
                     CheckClick(report, L"shortcut", link.Path());
  if (works) CheckEndurance(report, folder);
}

}  // namespace orvane::tool
