#include "designer/Document.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "designer/DocumentText.h"
#include "support/ProductName.h"

namespace orvane::designer {
namespace {

std::wstring NameOf(const std::wstring& path) {
  return path.empty() ? L"Untitled" : path.substr(path.find_last_of(L"\\/") + 1);
}

/// The item that has `index` items before it in the menu's order; counts `index` down.
MenuItem* Walk(MenuItem& parent, std::size_t& index) {
  for (const MenuItem::Owner& child : parent.children) {
    if (index-- == 0) return child.get();
    if (MenuItem* found = Walk(*child, index)) return found;
  }
  return nullptr;
}

Definition EmptyMenu() {
  Definition definition;
  definition.items.emplace_back();
  definition.items[0].data.m_szRoot_Caption = ProductName;
  return definition;
}

}  // namespace

Document::Document(MenuFile file) : m_file(std::move(file)) {
  Show(EmptyMenu());
}

void Document::Listen(EditListener* listener) {
  m_listener = listener;
  m_history.Listen(listener);
}

std::wstring Document::Title() const {
  return (IsDirty() ? L"*" : L"") + NameOf(m_file.Path()) + L" - Orvane Designer";
}

void Document::Show(const Definition& definition) {
  MenuItem::Owner top = TreeOf(definition.items.empty() ? EmptyMenu() : definition);
  if (m_listener) m_listener->Clearing();
  m_top = std::move(top);
  m_header = definition.header;
  m_history.Clear();
  m_history.Listen(m_listener);
}

void Document::New() {
  Show(EmptyMenu());
  m_file.Forget();
}

void Document::Open(const std::wstring& path) {
  m_file.Read(path, [&](const Definition& definition) { Show(definition); });
}

void Document::Save(const std::wstring& path) {
  m_file.Write(path, AsDefinition());
  m_history.Saved();
}

void Document::Import(const std::wstring& path, FileSystem& files) {
  const std::vector<std::byte> bytes = GetFile(files, path);
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  Replace(m_history, *m_top, TreeOf(MenuOfText(text)), L"Import");
}

void Document::Export(const std::wstring& path, FileSystem& files) const {
  const std::string text = FormatMenu(AsDefinition());
  const auto bytes = std::as_bytes(std::span(text));
  PutFile(files, path, {bytes.begin(), bytes.end()});
}

MenuItem* Document::ItemAt(std::size_t index) {
  return Walk(*m_top, index);
}

}  // namespace orvane::designer
