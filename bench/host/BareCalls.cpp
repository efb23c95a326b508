#include "host/BareCalls.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <map>

namespace orvane::host {
namespace {

constexpr wchar_t Settings[] = L"Software\\Tarnwick\\Orvane\\";

// The values that every new handler reads.
constexpr const wchar_t* SettingNames[] = {L"ShellEnable",
                                           L"ShellShowInIE",
                                           L"ShellShowIcons",
                                           L"ShellUseOwnFolderBitmap",
                                           L"ShellShowHistoryMRU",
                                           L"ShelllMaxHistoryMRU",
                                           L"ShellShowQuickAccessMRU",
                                           L"ShellShowFlags",
                                           L"ShellConfigFile",
                                           L"ShellCustomActionsFile",
                                           L"ShellMaxMenuText",
                                           L"ShellIgnoreBoundsCheck",
                                           L"ShellOwnerDraw",
                                           L"DebugFlags",
                                           L"DebugEnable",
                                           L"DebugOutput",
                                           L"DebugShowWindowsMenuInfo",
                                           L"DebugEnableInMenu",
                                           L"TimingEnable",
                                           L"TimingOutput",
                                           L"GeneralShowBackground",
                                           L"GeneralAllowMultipleInstances",
                                           L"GeneralSaveWindowPos"};

void Read(HKEY key, const wchar_t* name) {
  BYTE data[1024];
  DWORD size = sizeof data;
  RegQueryValueExW(key, name, nullptr, nullptr, data, &size);
}

void ReadSettings() {
  HKEY key = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, Settings, 0, KEY_QUERY_VALUE, &key);
  for (const wchar_t* name : SettingNames) Read(key, name);
  RegCloseKey(key);
}

void ReadList(const wchar_t* name, int entries) {
  HKEY key = nullptr;
  const std::wstring path = std::wstring(Settings) + L"ContextMenu\\" + name;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
    return;
  Read(key, L"MruFileCount");
  for (int i = 1; i <= entries; ++i) Read(key, (L"Mru" + std::to_wstring(i)).c_str());
  RegCloseKey(key);
}

void Insert(HMENU menu, UINT id, const wchar_t* caption, UINT type = MFT_STRING,
            HMENU submenu = nullptr, HBITMAP picture = nullptr) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_SUBMENU | MIIM_STRING | MIIM_FTYPE;
  if (picture) info.fMask |= MIIM_CHECKMARKS;
  info.fType = type;
  info.wID = id;
  info.hSubMenu = submenu;
  info.hbmpChecked = info.hbmpUnchecked = picture;
  info.dwTypeData = const_cast<wchar_t*>(caption);
  InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
}

/// The pictures of one menu, gone with the object.
class Pictures {
 public:
  Pictures() : m_from(CreateCompatibleDC(nullptr)), m_to(CreateCompatibleDC(nullptr)) {}
  ~Pictures() {
    for (const HBITMAP bitmap : m_bitmaps) DeleteObject(bitmap);
    DeleteDC(m_from);
    DeleteDC(m_to);
  }
  Pictures(const Pictures&) = delete;
  Pictures& operator=(const Pictures&) = delete;

  /// A menu bitmap in the menu's colour; for a check mark also at that size.
  void Load(int resource, bool checkMark) {
    COLORMAP map{RGB(255, 0, 255), GetSysColor(COLOR_MENU)};
    const HBITMAP normal =
        CreateMappedBitmap(GetModuleHandleW(L"orvane.dll"), resource, 0, &map, 1);
    m_bitmaps.push_back(normal);
    if (!checkMark) return;
    const HBITMAP scaled = Blank(16);
    const HGDIOBJ from = SelectObject(m_from, normal);
    const HGDIOBJ to = SelectObject(m_to, scaled);
    StretchBlt(m_to, 0, 0, 16, 16, m_from, 0, 0, 16, 16, SRCCOPY);
    SelectObject(m_from, from);
    SelectObject(m_to, to);
    m_bitmaps.push_back(scaled);
  }

  /// The icon that files of the kind share, as a bitmap of each size; several kinds may share it
  /// again. The last one.
  HBITMAP Fetch(const std::wstring& extension, std::initializer_list<int> sizes) {
    SHFILEINFOW info{};
    const auto list = reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoW((L"file" + extension).c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                       SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES));
    HBITMAP& picture = m_icons[info.iIcon];
    if (picture) return picture;
    const HICON icon = ImageList_GetIcon(list, info.iIcon, ILD_NORMAL);
    for (const int size : sizes) {
      m_bitmaps.push_back(Blank(16));
      const HGDIOBJ to = SelectObject(m_to, m_bitmaps.back());
      const RECT area{0, 0, size, size};
      FillRect(m_to, &area, GetSysColorBrush(COLOR_MENU));
      DrawIconEx(m_to, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
      SelectObject(m_to, to);
    }
    DestroyIcon(icon);
    return picture = m_bitmaps.back();
  }

 private:
  HBITMAP Blank(int size) const {
    const HDC screen = GetDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, size, size);
    ReleaseDC(nullptr, screen);
    return bitmap;
  }

  HDC m_from;
  HDC m_to;
  std::vector<HBITMAP> m_bitmaps;
  std::map<int, HBITMAP> m_icons;  // by their place in the system's list
};

}  // namespace

std::vector<std::byte> BareFile(const std::wstring& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  std::vector<std::byte> bytes(GetFileSize(file, nullptr));
  DWORD read = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
  CloseHandle(file);
  return bytes;
}

void BareHandler(int listEntries) {
  ReadSettings();
  ReadList(L"HistoryMRU", listEntries);
  ReadList(L"QuickAccessMRU", listEntries);
  ReadList(L"CopyTo", 0);
}

void BareRightClick::operator()() const {
  BareHandler(listEntries);
  wchar_t path[MAX_PATH];
  SHGetPathFromIDListW(folder, path);
  GetFileAttributesW(config.c_str());
  BareFile(config);
  Pictures loaded;
  std::vector<HBITMAP> icons;
  // The root entry's, which Windows paints, is a check mark.
  for (const int picture : pictures) loaded.Load(100 + picture, picture == 1);
  for (const std::wstring& kind : kinds) icons.push_back(loaded.Fetch(kind, {16, 14}));
  const HMENU menu = CreatePopupMenu();
  const HMENU root = CreatePopupMenu();
  InsertMenuW(menu, 0, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
  UINT id = 1;
  std::vector<HMENU> targets;
  for (int i = 0; i < popups; ++i) {
    targets.push_back(CreatePopupMenu());
    Insert(root, id++, L"Popup 10", ownerDraw ? MFT_OWNERDRAW : MFT_STRING, targets.back());
  }
  if (targets.empty()) targets.push_back(root);
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (!icons.empty()) GetFileAttributesW(files[i].c_str());
    Insert(targets[i % targets.size()], id++, L"Document 1000",
           ownerDraw ? MFT_OWNERDRAW : MFT_STRING, nullptr,
           icons.empty() ? nullptr : icons[i % icons.size()]);
  }
  for (int i = 0; i < 2 * listEntries + extras; ++i)
    Insert(root, id++, L"Recent 1", ownerDraw ? MFT_OWNERDRAW : MFT_STRING);
  AppendMenuW(root, MF_SEPARATOR, 0, nullptr);
  Insert(root, id++, L"&Designer...");
  Insert(menu, 0, L"Orvane", MFT_STRING, root);
  InsertMenuW(menu, 2, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
  DestroyMenu(menu);
}

void BareFolder(const std::wstring& folder, HMENU menu) {
  WIN32_FIND_DATAW found;
  const HANDLE walk = FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &found,
                                       FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  UINT id = 1;
  do Insert(menu, id++, found.cFileName, MFT_OWNERDRAW);
  while (FindNextFileW(walk, &found));
  FindClose(walk);
}

void BarePainting(HDC context, const std::vector<std::wstring>& names,
                  const std::vector<std::wstring>& kinds) {
  Pictures loaded;
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const HFONT font = CreateFontIndirectW(&metrics.lfMenuFont);
  const HDC memory = CreateCompatibleDC(nullptr);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const RECT area{0, 0, 200, 20};
    RECT text{25, 3, 200, 20};
    const HGDIOBJ oldFont = SelectObject(context, font);
    const HBRUSH brush = CreateSolidBrush(GetSysColor(COLOR_MENU));
    const HPEN pen = CreatePen(PS_SOLID, 1, GetSysColor(COLOR_MENU));
    const HGDIOBJ oldBrush = SelectObject(context, brush);
    const HGDIOBJ oldPen = SelectObject(context, pen);
    Rectangle(context, area.left, area.top, 22, area.bottom);
    Rectangle(context, 23, area.top, area.right, area.bottom);
    const int mode = SetBkMode(context, TRANSPARENT);
    const COLORREF colour = SetTextColor(context, GetSysColor(COLOR_MENUTEXT));
    DrawTextW(context, names[i].c_str(), -1, &text, 0);
    SetTextColor(context, colour);
    SetBkMode(context, mode);
    SelectObject(context, oldPen);
    SelectObject(context, oldBrush);
    DeleteObject(pen);
    DeleteObject(brush);
    const HGDIOBJ oldBitmap = SelectObject(memory, loaded.Fetch(kinds[i % kinds.size()], {16}));
    BitBlt(context, 4, 2, 16, 16, memory, 0, 0, SRCCOPY);
    SelectObject(memory, oldBitmap);
    SelectObject(context, oldFont);
  }
  DeleteDC(memory);
  DeleteObject(font);
}

}  // namespace orvane::host
