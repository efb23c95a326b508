#include "PreviewSession.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <utility>

#include "Host.h"
#include "HostFile.h"
#include "WideText.h"
#include "memory/DataObject.h"
#include "memory/RegFile.h"
#include "menudata/Definition.h"
#include "menudata/DefinitionFile.h"
#include "menudata/clsOrvaneDataTools.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

constexpr std::uint32_t HelpTextWide = 5;  // GCS_HELPTEXTW
constexpr std::uint16_t CtrlKey = 0x11;    // VK_CONTROL
constexpr std::uint16_t ShiftKey = 0x10;   // VK_SHIFT

std::wstring WithoutAmpersands(std::wstring text) {
  std::erase(text, L'&');
  return text;
}

void Import(const std::string& path, memory::Registry& registry) {
  const std::string content = ReadHostFile(path);
  try {
    memory::ImportRegFile(std::as_bytes(std::span(content)), registry);
  } catch (const Error& error) {
    throw std::runtime_error(path + ": " + ToUtf8(error.Description()));
  }
}

/// Puts a file of the host where the settings, or the default, want it.
void Place(memory::Desktop& desktop, const std::string& content, const std::wstring& setting,
           const std::wstring& defaultName) {
  const auto configured =
      desktop.registry.FindText(Hive::CurrentUser, L"Software\\Tarnwick\\Orvane", setting);
  std::wstring place(Trim(configured.value_or(L"")));
  if (place.empty()) place = desktop.system.programFolder + L"\\" + defaultName;
  desktop.files.AddFile(place, content);
}

/// A preview of what cannot be read would show an empty menu.
void CheckDefinition(memory::Desktop& desktop, const std::string& path,
                     const std::string& content) {
  if (content.starts_with('{') || content.starts_with('/'))
    throw std::runtime_error(path +
                             ": is a document; \"orvane menu write\" makes the definition "
                             "file of it that is shown");
  const auto bytes = std::as_bytes(std::span(content));
  const CodePage codePage(desktop.system.AnsiCharacters());
  const clsOptions options;
  Scrambler scrambler;
  const clsOrvaneDataTools tools(options, codePage, scrambler, desktop.shell);
  DefinitionFile file({bytes.begin(), bytes.end()}, codePage);
  try {
    ReadDefinition(file, tools);
  } catch (const Error& error) {
    throw std::runtime_error(path + ": " + ToUtf8(error.Description()));
  }
}

/// The drive's letter as a capital; none for what is no letter.
wchar_t LetterOf(char c) {
  if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return c >= 'A' && c <= 'Z' ? static_cast<wchar_t>(c) : L'\0';
}

/// The entry that a path of captions leads to from `menu` on; null when there is none. A caption
/// may hold a "/" of its own.
const MenuEntry* FindEntry(const memory::Menus& menus, MenuHandle menu, std::wstring_view path) {
  for (const MenuEntry& entry : menus.Entries(menu)) {
    const std::wstring caption = WithoutAmpersands(entry.caption);
    if (entry.separator || !path.starts_with(caption)) continue;
    const std::wstring_view rest = path.substr(caption.size());
    if (rest.empty()) return &entry;
    if (rest.front() != L'/' || entry.submenu == MenuHandle::None) continue;
    if (const MenuEntry* found = FindEntry(menus, entry.submenu, rest.substr(1))) return found;
  }
  return nullptr;
}

}  // namespace

PreviewSession::PreviewSession(const PreviewOptions& options) : m_options(options) {
  MountDrives();
  const std::string config = ReadHostFile(options.config);
  CheckDefinition(desktop, options.config, config);
  if (!options.registry.empty()) Import(options.registry, desktop.registry);
  Place(desktop, config, L"ShellConfigFile", L"Default.cfg");
  if (!options.actions.empty())
    Place(desktop, ReadHostFile(options.actions), L"ShellCustomActionsFile", L"CustomActions.ini");
  for (const std::string& answer : options.answers) desktop.answers.Add(WideText(answer));
  if (options.ctrl) desktop.keyboard.down.insert(CtrlKey);
  if (options.shift) desktop.keyboard.down.insert(ShiftKey);
  AddWindows();
}

void PreviewSession::Mount(const std::wstring& drive, const std::string& directory) {
  const std::filesystem::path path = HostPath(directory);
  if (!std::filesystem::is_directory(path))
    throw std::runtime_error(directory + ": is no directory");
  desktop.files.Mount(drive, path);
}

void PreviewSession::MountDrives() {
  if (!m_options.driveC.empty()) Mount(L"C:", m_options.driveC);
  for (const std::string& drive : m_options.drives) {
    const std::size_t equals = drive.find('=');
    const bool isLetter = !drive.empty() && LetterOf(drive.front()) != L'\0';
    if (!isLetter || (equals != 1 && !(equals == 2 && drive[1] == ':')))
      throw std::runtime_error("--drive \"" + drive + "\" is not LETTER=DIRECTORY");
    Mount({LetterOf(drive.front()), L':'}, drive.substr(equals + 1));
  }
  desktop.files.AddFolder(desktop.system.programFolder);  // where logs go
}

// The windows stand child first on the command line, and a child needs its parent. Without any, the
// menu is asked for by a folder window.
void PreviewSession::AddWindows() {
  constexpr std::uint32_t ShellProcess = 0x1000;
  desktop.windows.Add({.className = L"Shell_TrayWnd", .process = ShellProcess});
  std::vector<std::string> windows = m_options.windows;
  if (windows.empty()) windows.push_back("CabinetWClass:Folder:C:\\Windows\\explorer.exe");
  for (auto text = windows.rbegin(); text != windows.rend(); ++text) {
    const std::size_t first = text->find(':');
    const std::size_t second = first == text->npos ? first : text->find(':', first + 1);
    if (second == text->npos)
      throw std::runtime_error("--window \"" + *text + "\" is not CLASS:CAPTION:EXE");
    AddWindow(WideText(text->substr(0, first)),
              WideText(text->substr(first + 1, second - first - 1)),
              WideText(text->substr(second + 1)));
  }
  desktop.windows.Activate(m_window);
}

/// A window of a program of its own, in front of the last one. Explorer's have a shell browser.
void PreviewSession::AddWindow(std::wstring className, std::wstring caption,
                               std::wstring executable) {
  const auto process = static_cast<std::uint32_t>(desktop.processes.running.size() + 1);
  memory::Windows::Window window;
  window.parent = m_window;
  window.className = std::move(className);
  window.caption = std::move(caption);
  window.process = process;
  window.thread = process;
  if (LowerCase(executable).ends_with(L"explorer.exe"))
    window.results[memory::Launcher::GetShellBrowser] = static_cast<std::intptr_t>(process);
  desktop.processes.running.push_back(
      {.id = process, .executable = std::move(executable), .threads = {process}});
  m_window = desktop.windows.Add(std::move(window));
}

std::int32_t PreviewSession::BuildMenu() {
  m_globals.emplace(desktop.Bundle());
  m_handler = std::make_unique<ContextMenuHandler>(*m_globals);
  const std::wstring folder = WideText(m_options.folder);
  std::shared_ptr<DataObject> selection;
  if (!m_options.select.empty()) {
    FileNames names;
    for (const std::string& name : m_options.select) names.Add(WideText(name));
    selection = std::make_shared<memory::DataObject>(std::move(names));
  }
  m_handler->IShellExtInit_Initialize(folder.empty() ? ItemIdList() : memory::Shell::ItemOf(folder),
                                      std::move(selection), 0);
  menu = desktop.menus.CreatePopup();
  const std::int32_t result =
      m_handler->IContextMenu_QueryContextMenuEx(menu, 0, m_options.idFirst, m_options.idLast, 0);
  for (const std::string& path : m_options.open) OpenSubmenu(path);
  return result;
}

const MenuEntry& PreviewSession::Find(const std::string& path) const {
  const MenuEntry* entry = FindEntry(desktop.menus, menu, WithoutAmpersands(WideText(path)));
  if (!entry) throw std::runtime_error("the menu has no entry \"" + path + "\"");
  return *entry;
}

void PreviewSession::OpenSubmenu(const std::string& path) {
  const MenuHandle submenu = Find(path).submenu;
  if (submenu == MenuHandle::None)
    throw std::runtime_error("the entry \"" + path + "\" has no submenu");
  m_handler->Menu().Open(submenu);
}

void PreviewSession::Invoke() {
  InvokeRequest request;
  request.window = m_window;
  if (m_options.verb) {
    request.byOffset = false;
    request.verb = WideText(*m_options.verb);
  } else {
    const MenuEntry& entry = Find(m_options.invoke);
    if (entry.submenu != MenuHandle::None || entry.state != MenuEntry::State::Enabled)
      throw std::runtime_error(
          "the entry \"" + m_options.invoke + "\" cannot be chosen: it " +
          (entry.submenu != MenuHandle::None ? "opens a submenu" : "is disabled"));
    request.offset = static_cast<std::int32_t>(entry.id) - m_options.idFirst;
  }
  m_handler->IContextMenu_InvokeCommand(request);
  m_handler.reset();
}

std::wstring PreviewSession::HelpText(const MenuEntry& entry) const {
  TextRequest request;
  request.idCmd = static_cast<std::int32_t>(entry.id) - m_options.idFirst;
  request.uFlags = HelpTextWide;
  return m_handler->IContextMenu_GetCommandString(request).text;
}

}  // namespace orvane::tool
