// What the shell asks a handler after the menu was built: texts of any entry in any form, commands
// by offset and by verb. An entry outside what was lent is never the handler's, and no text is
// longer than the shell's buffer.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>

#include "memory/DataObject.h"
#include "memory/Desktop.h"
#include "shellext/ContextMenuHandler.h"

namespace {

using namespace orvane;

class Scene {
 public:
  Scene() {
    m_desktop.files.AddFile(L"C:\\Work\\a.txt", "a");
    m_desktop.files.AddFile(L"C:\\Work\\b\\c.txt", "c");
    m_globals.emplace(m_desktop.Bundle());
  }

  void Run(std::span<const std::uint8_t> bytes) {
    ContextMenuHandler handler(*m_globals);
    handler.IShellExtInit_Initialize(memory::Shell::ItemOf(L"C:\\Work"), Selected(), 0);
    const MenuHandle menu = m_desktop.menus.CreatePopup();
    m_count = handler.IContextMenu_QueryContextMenuEx(menu, 0, 1, 1000, 0);
    if (m_count < 5) std::abort();
    for (; bytes.size() >= 4; bytes = bytes.subspan(4)) Request(handler, bytes);
    m_desktop.menus.Destroy(menu);
  }

 private:
  static std::shared_ptr<DataObject> Selected() {
    FileNames names;
    names.Add(L"C:\\Work\\a.txt");
    names.Add(L"C:\\Work\\b");
    return std::make_shared<memory::DataObject>(std::move(names));
  }

  void Request(ContextMenuHandler& handler, std::span<const std::uint8_t> bytes) {
    const std::int32_t offset = static_cast<std::int8_t>(bytes[1]);
    if (bytes[0] % 4 != 0)
      Ask(handler, {.idCmd = offset, .uFlags = bytes[2], .cchMax = bytes[3]});
    else if (bytes[2] % 4 != 0)
      Invoke(handler, {.window = {}, .byOffset = true, .offset = offset, .verb = {}}, offset);
    else
      InvokeVerb(handler, bytes.subspan(4, std::min<std::size_t>(bytes.size() - 4, bytes[3] % 16)));
  }

  void Ask(const ContextMenuHandler& handler, const TextRequest& request) {
    const CommandText text = handler.IContextMenu_GetCommandString(request);
    if (text.isOurs && (request.idCmd < 0 || request.idCmd >= m_count)) std::abort();
    std::array<char, 256> narrow;
    narrow.fill('x');
    CopyBounded(text.text, m_globals->codePage, std::span(narrow).first(request.cchMax));
    std::array<char16_t, 256> wide;
    wide.fill(u'x');
    CopyBounded(text.text, std::span(wide).first(request.cchMax));
    const std::size_t end = request.cchMax;
    if (narrow[end] != 'x' || wide[end] != u'x') std::abort();
    if (end > 0 && (!HasZero(std::span(narrow).first(end)) || !HasZero(std::span(wide).first(end))))
      std::abort();
  }
  template <class Buffer>
  static bool HasZero(const Buffer& buffer) {
    return std::ranges::find(buffer, 0) != buffer.end();
  }

  void Invoke(ContextMenuHandler& handler, const InvokeRequest& request, std::int32_t offset) {
    const InvokeOutcome outcome = handler.IContextMenu_InvokeCommand(request);
    if (outcome.isOurs && (offset < 0 || offset >= m_count)) std::abort();
  }

  /// "Item" and a number is a verb of the handler's own.
  void InvokeVerb(ContextMenuHandler& handler, std::span<const std::uint8_t> name) {
    std::wstring verb(name.begin(), name.end());
    if (verb.starts_with(L'i')) verb.replace(0, 1, L"Item");
    handler.IContextMenu_InvokeCommand(
        {.window = {}, .byOffset = false, .offset = 0, .verb = std::move(verb)});
  }

  memory::Desktop m_desktop;
  std::optional<ModuleGlobals> m_globals;
  std::int32_t m_count = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Scene().Run({data, std::min<std::size_t>(size, 2000)});
  return 0;
}
