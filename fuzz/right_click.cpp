// A whole right-click over a random desktop: settings, lists, a menu definition, files, a selection
// and a range of identifiers, all out of the input. Whatever they are, the menu's identifiers are
// unique, inside what was answered for and in the command table; every text of every entry can be
// asked for, any entry invoked, and in the end nothing is left over.

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <set>
#include <span>
#include <string>

#include "memory/DataObject.h"
#include "memory/Desktop.h"
#include "menudata/Definition.h"
#include "shellext/ContextMenuHandler.h"

namespace {

using namespace orvane;

/// The input, taken byte by byte; zeros when it is used up.
class Input {
 public:
  explicit Input(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

  bool More() const { return !m_bytes.empty(); }
  std::uint8_t Byte() {
    if (m_bytes.empty()) return 0;
    const std::uint8_t byte = m_bytes.front();
    m_bytes = m_bytes.subspan(1);
    return byte;
  }
  std::wstring Text() {
    std::wstring text(Byte() % 24, L' ');
    for (wchar_t& character : text) character = Byte();
    return text;
  }
  template <std::size_t N>
  std::wstring OneOf(const wchar_t* const (&choices)[N]) {
    const std::size_t choice = Byte();
    return choice % (N + 1) == N ? Text() : choices[choice % (N + 1)];
  }

 private:
  std::span<const std::uint8_t> m_bytes;
};

constexpr const wchar_t* Places[] = {
    L"C:\\Work",          L"C:\\Work\\a.txt", L"C:\\",   L"5",     L"",
    L"\\\\server\\share", L"C:\\Work\\Deep",  L"D:\\no", L"%TEMP%"};
constexpr const wchar_t* Numbers[] = {
    L"ShellEnable",         L"ShellShowIcons",      L"ShellUseOwnFolderBitmap",
    L"ShellShowHistoryMRU", L"ShelllMaxHistoryMRU", L"ShellShowQuickAccessMRU",
    L"ShellShowFlags",      L"ShellMaxMenuText",    L"ShellIgnoreBoundsCheck",
    L"ShellOwnerDraw",      L"DebugEnable",         L"DebugEnableInMenu",
    L"DebugFlags",          L"TimingEnable"};

/// One right-click, from the desktop to the invoked command.
class Session {
 public:
  explicit Session(Input& input) : m_input(input) {
    FillDesktop();
    StoreSettings();
    StoreDefinition();
  }

  void Run() {
    {
      ModuleGlobals globals(m_desktop.Bundle());
      ContextMenuHandler handler(globals);
      Click(handler);
      if (m_input.Byte() % 4 == 0) Click(handler);
      for (std::int32_t offset = -2; offset < 40; ++offset)
        handler.IContextMenu_GetCommandString(
            {.idCmd = offset, .uFlags = m_input.Byte() % 7u, .cchMax = m_input.Byte()});
      handler.IContextMenu_InvokeCommand({.window = {},
                                          .byOffset = m_input.Byte() % 4 != 0,
                                          .offset = m_input.Byte() % 64 - 2,
                                          .verb = m_input.Text()});
      for (const MenuHandle menu : m_shellMenus) m_desktop.menus.Destroy(menu);
    }
    if (m_desktop.menus.LiveCount() != 0 || m_desktop.gdi.Live() != 0) std::abort();
    if (m_desktop.icons.Live() != 0 || !m_desktop.gdi.Mistakes().empty()) std::abort();
  }

 private:
  void FillDesktop() {
    m_desktop.files.AddFile(L"C:\\Work\\a.txt", "a");
    m_desktop.files.AddFile(L"C:\\Work\\Deep\\b.txt", "b");
    for (int left = m_input.Byte() % 8; left > 0; --left)
      m_desktop.files.AddFile(L"C:\\Work\\file" + std::to_wstring(m_input.Byte()) + L".txt");
    m_desktop.answers.Add(m_input.OneOf(Places));
  }

  void StoreSettings() {
    for (const wchar_t* name : Numbers)
      if (const std::uint8_t value = m_input.Byte(); value < 128) Set(name, value);
  }

  void Set(const std::wstring& name, std::uint8_t value) {
    m_desktop.registry.SetNumber(Hive::CurrentUser, Key, name, value);
    if (name == L"ShellIgnoreBoundsCheck") m_unbounded = value != 0;
  }

  clsOrvaneData Item() {
    clsOrvaneData item;
    item.m_lType = m_input.Byte() % 12;
    item.m_lOptions = m_input.Byte() % 16;
    item.Location(m_input.OneOf(Places));
    item.Caption(m_input.Text());
    item.m_szAction_Actions = m_input.Byte() % 4 ? L"" : m_input.Text();
    item.m_szSelection_Command = item.m_szSelection_File = m_input.OneOf(Places);
    item.m_szSelection_Filter = item.m_szDFolder_Filter = m_input.Byte() % 4 ? L"" : m_input.Text();
    item.m_lSelection_Options = m_input.Byte();
    return item;
  }

  void StoreDefinition() {
    Definition definition;
    for (int left = m_input.Byte() % 24; left > 0; --left)
      definition.items.push_back({m_input.Byte() % 12, Item()});
    definition.header.ItemCount = static_cast<std::int32_t>(definition.items.size());
    const CodePage codePage(m_desktop.system.AnsiCharacters());
    Scrambler scrambler;
    try {
      const auto bytes = WriteDefinition(definition, codePage, scrambler);
      m_desktop.files.AddFile(L"C:\\Program Files\\Orvane\\Default.cfg",
                              {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    } catch (const Error&) {
    }
  }

  void Click(ContextMenuHandler& handler) {
    std::shared_ptr<DataObject> selection;
    if (const int count = m_input.Byte() % 4; count > 0) {
      FileNames names;
      for (int i = 0; i < count; ++i) names.Add(m_input.OneOf(Places));
      selection = std::make_shared<memory::DataObject>(std::move(names));
    }
    const std::wstring folder = m_input.OneOf(Places);
    handler.IShellExtInit_Initialize(folder.empty() ? ItemIdList() : memory::Shell::ItemOf(folder),
                                     selection, 0);
    m_shellMenus.push_back(m_desktop.menus.CreatePopup());
    const std::int32_t first = m_input.Byte() * 128;
    const std::int32_t last = first + m_input.Byte() * (m_input.Byte() % 2 ? 100 : 1);
    m_bound =
        first + handler.IContextMenu_QueryContextMenuEx(m_shellMenus.back(), 0, first, last, 0);
    Open(handler, m_shellMenus.back(), 0);
    m_seen.clear();
    Verify(handler.State(), m_shellMenus.back());
  }

  void Open(ContextMenuHandler& handler, MenuHandle menu, int depth) {
    handler.Menu().Open(menu);
    Paint(handler, menu);
    if (depth == 4) return;
    const std::vector<MenuEntry> entries = m_desktop.menus.Entries(menu);
    for (const MenuEntry& entry : entries)
      if (entry.submenu != MenuHandle::None) Open(handler, entry.submenu, depth + 1);
  }

  void Paint(ContextMenuHandler& handler, MenuHandle menu) {
    Gdi& gdi = m_desktop.gdi;
    const UniqueScreen screen(gdi, gdi.OpenScreen());
    const UniqueContext context(gdi, gdi.CreateContext());
    const UniqueBitmap bitmap(gdi, gdi.CreateCompatible(screen.get(), {60, 20}));
    const Selected selected(gdi, context.get(), bitmap.get());
    const std::vector<MenuEntry> entries = m_desktop.menus.Entries(menu);
    for (const MenuEntry& entry : entries) {
      const auto id = static_cast<std::int32_t>(entry.id);
      handler.Menu().Measure(id);
      handler.Menu().Draw({id, entry.id % 8, context.get(), {0, 0, 60, 20}});
    }
  }

  void Verify(const HandlerState& state, MenuHandle menu) {
    for (const MenuEntry& entry : m_desktop.menus.Entries(menu)) {
      if (entry.submenu != MenuHandle::None) Verify(state, entry.submenu);
      if (entry.separator || entry.submenu == state.rootMenu) continue;
      if (entry.caption.ends_with(L"able debugging")) continue;
      const auto id = static_cast<std::int32_t>(entry.id);
      if (id < state.ids.First() || (id >= m_bound && !m_unbounded)) std::abort();
      if (!state.commands.Find(id)) std::abort();
      if (!m_seen.insert(id).second && id != state.emptyId) std::abort();
    }
  }

  static constexpr const wchar_t* Key = L"Software\\Tarnwick\\Orvane\\";

  Input& m_input;
  memory::Desktop m_desktop;
  std::vector<MenuHandle> m_shellMenus;
  std::set<std::int32_t> m_seen;
  std::int32_t m_bound = 0;
  bool m_unbounded = false;  // identifiers past the answer are the user's wish
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input({data, size});
  Session(input).Run();
  return 0;
}
