#include "win32/ShellIcons.h"

#include <windows.h>

#include <commctrl.h>
#include <commoncontrols.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "win32/ComPointer.h"
#include "win32/NativeHandles.h"

namespace orvane::win32 {
namespace {

/// No message box about a drive without a disk while it lives.
class QuietDrives {
 public:
  QuietDrives() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &m_before); }
  ~QuietDrives() { SetThreadErrorMode(m_before, nullptr); }
  QuietDrives(const QuietDrives&) = delete;
  QuietDrives& operator=(const QuietDrives&) = delete;

 private:
  DWORD m_before = 0;
};

std::optional<SystemIcon> Ask(const std::wstring& path, DWORD attributes, UINT how) {
  QuietDrives quiet;
  SHFILEINFOW info{};
  const DWORD_PTR imageList = SHGetFileInfoW(path.c_str(), attributes, &info, sizeof info,
                                             SHGFI_SYSICONINDEX | SHGFI_SMALLICON | how);
  if (imageList == 0) return std::nullopt;
  return SystemIcon{imageList, info.iIcon};
}

/// What the registry holds for an extension, which is looked up once for all questions.
class Association {
 public:
  explicit Association(const std::wstring& extension) {
    if (FAILED(AssocCreate(CLSID_QueryAssociations, IID_IQueryAssociations,
                           reinterpret_cast<void**>(m_query.Out()))) ||
        FAILED(m_query->Init(ASSOCF_NONE, extension.c_str(), nullptr, nullptr)))
      m_query = {};
  }

  /// Empty when it holds none.
  std::wstring Text(ASSOCSTR what, const wchar_t* extra) const {
    std::array<wchar_t, 512> text{};
    DWORD size = static_cast<DWORD>(text.size());
    if (!m_query || m_query->GetString(ASSOCF_NONE, what, extra, text.data(), &size) != S_OK)
      return {};
    return text.data();
  }

 private:
  ComPointer<IQueryAssociations> m_query;
};

/// Owns a COM interface.
class ImageList {
 public:
  explicit ImageList(int list) {
    if (FAILED(SHGetImageList(list, __uuidof(IImageList), reinterpret_cast<void**>(&m_list))))
      m_list = nullptr;
  }
  ~ImageList() {
    if (m_list) m_list->Release();
  }
  ImageList(const ImageList&) = delete;
  ImageList& operator=(const ImageList&) = delete;

  /// Width of its icons; 0 when the list is not there.
  int Width() const {
    int width = 0;
    int height = 0;
    return m_list && SUCCEEDED(m_list->GetIconSize(&width, &height)) ? width : 0;
  }

  HICON Copy(int index) const {
    HICON icon = nullptr;
    return m_list && SUCCEEDED(m_list->GetIcon(index, ILD_NORMAL, &icon)) ? icon : nullptr;
  }

 private:
  IImageList* m_list = nullptr;
};

/// What stands in the shortcut, whether it is there or not.
std::vector<std::wstring> PlacesOfLink(const std::wstring& path) {
  ComPointer<IShellLinkW> link;
  ComPointer<IPersistFile> file;
  if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                              reinterpret_cast<void**>(link.Out()))) ||
      FAILED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Out()))) ||
      FAILED(file->Load(path.c_str(), STGM_READ))) {
    return {};
  }
  std::array<wchar_t, MAX_PATH> target{}, icon{};
  int index = 0;
  link->GetPath(target.data(), static_cast<int>(target.size()), nullptr, SLGP_RAWPATH);
  link->GetIconLocation(icon.data(), static_cast<int>(icon.size()), &index);
  return {target.data(), icon.data()};
}

}  // namespace

std::optional<SystemIcon> ShellIcons::Find(const std::wstring& path) {
  if (path.empty()) return std::nullopt;  // the desktop, to the shell
  return Ask(path, 0, 0);
}

std::optional<SystemIcon> ShellIcons::FindFileKind(const std::wstring& extension) {
  return Ask(L"file" + extension, FILE_ATTRIBUTE_NORMAL, SHGFI_USEFILEATTRIBUTES);
}

std::optional<SystemIcon> ShellIcons::FindFolderKind() {
  return Ask(L"folder", FILE_ATTRIBUTE_DIRECTORY, SHGFI_USEFILEATTRIBUTES);
}

bool ShellIcons::HasOwnIcons(const std::wstring& extension) {
  // What the shell knows by itself; the rest says so in the registry.
  static constexpr std::wstring_view Known[] = {L".exe", L".lnk", L".url", L".ico",
                                                L".cur", L".ani", L".scr", L".pif"};
  if (extension.empty()) return false;
  if (std::ranges::find(Known, extension) != std::end(Known)) return true;
  const Association kind(extension);
  return kind.Text(ASSOCSTR_DEFAULTICON, nullptr).find(L"%1") != std::wstring::npos ||
         !kind.Text(ASSOCSTR_SHELLEXTENSION, L"IconHandler").empty();
}

std::vector<std::wstring> ShellIcons::LeadsTo(const std::wstring& path) {
  const wchar_t* extension = PathFindExtensionW(path.c_str());
  if (lstrcmpiW(extension, L".lnk") == 0) return PlacesOfLink(path);
  if (lstrcmpiW(extension, L".url") != 0) return {};
  std::array<wchar_t, MAX_PATH> icon{};
  GetPrivateProfileStringW(L"InternetShortcut", L"IconFile", L"", icon.data(),
                           static_cast<DWORD>(icon.size()), path.c_str());
  return {icon.data()};
}

IconHandle ShellIcons::Take(const SystemIcon& icon, std::int32_t size) {
  // An icon has the same index in each of the system's lists.
  for (int list : {SHIL_SMALL, SHIL_LARGE, SHIL_EXTRALARGE}) {
    const ImageList images(list);
    if (images.Width() >= size) return FromNative<IconHandle>(images.Copy(icon.index));
  }
  return FromNative<IconHandle>(ImageList(SHIL_EXTRALARGE).Copy(icon.index));
}

void ShellIcons::FreeIcon(IconHandle icon) {
  DestroyIcon(ToNative<HICON>(icon));
}

}  // namespace orvane::win32
