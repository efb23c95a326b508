#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "designer/Document.h"
#include "memory/Desktop.h"
#include "shellext/ModuleGlobals.h"

namespace orvane::test {

using designer::Items;
using designer::MenuItem;
using Data = clsOrvaneData;

inline constexpr const wchar_t* MenuPath = L"C:\\Program Files\\Orvane\\Default.cfg";

inline Data Record(std::int32_t type, const std::wstring& caption,
                   const std::wstring& location = {}) {
  Data data;
  data.m_lType = type;
  data.Location(location);
  data.Caption(caption);
  return data;
}

inline std::string TextOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A document over the memory desktop.
struct Desk {
  memory::Desktop desktop;
  ModuleGlobals globals{desktop.Bundle()};
  designer::Document document{
      designer::MenuFile(desktop.files, globals.codePage, globals.scrambler, globals.tools)};

  MenuItem& Top() { return document.Top(); }
  MenuItem& Root() { return *document.Top().children.front(); }
  designer::History& Edits() { return document.Edits(); }

  MenuItem& Add(const Data& data, MenuItem* parent = nullptr) {
    MenuItem& at = parent ? *parent : Root();
    return *Insert(Edits(), data, {&at, at.children.size()}).front();
  }

  /// A popup with a file, a line and a folder.
  void AddSome() {
    MenuItem& popup = Add(Record(Data::TypePopupMenu, L"&Tools"));
    Add(Record(Data::TypeFile, L"Editor", L"C:\\Tools\\editor.exe"), &popup);
    Add(Record(Data::TypeSeparator, L""));
    Add(Record(Data::TypeFolder, L"Work", L"C:\\Work"));
  }

  std::vector<std::byte> Bytes() { return document.File().BytesOf(document.AsDefinition()); }

  /// The captions in the menu's order, what a popup holds in brackets behind its own.
  std::wstring Tree() { return TreeBelow(Root()); }

  MenuItem* Find(const std::wstring& caption) { return FindText(Top(), caption, nullptr); }

 private:
  static std::wstring TreeBelow(const MenuItem& parent) {
    std::wstring text;
    for (const MenuItem::Owner& child : parent.children) {
      text += (text.empty() ? L"" : L" ") + std::wstring(child->data.Caption());
      if (!child->children.empty()) text += L"(" + TreeBelow(*child) + L")";
    }
    return text;
  }
};

/// The description of the Error that an action ends in; empty for none.
template <class Action>
std::wstring ErrorOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Description();
  }
  return {};
}

}  // namespace orvane::test
