#pragma once

#include <string>

#include "designer/Commands.h"
#include "designer/MenuFile.h"

namespace orvane::designer {

/// The menu that is designed: its items, what was done to them, and the file it lives in.
class Document {
 public:
  explicit Document(MenuFile file);
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  MenuItem& Top() { return *m_top; }
  const MenuItem& Top() const { return *m_top; }
  History& Edits() { return m_history; }
  MenuFile& File() { return m_file; }

  /// What follows the edits; it shows the menu anew after New, Open and Import.
  void Listen(EditListener* listener);

  bool IsDirty() const { return !m_history.IsSaved(); }
  /// "*Default.cfg - Orvane Designer": the star while there is something to save.
  std::wstring Title() const;

  // Each throws an Error or a DocumentError and then leaves the document as it was.

  /// An empty menu in no file.
  void New();
  void Open(const std::wstring& path);
  /// UnwritableText for a text that the file cannot hold; see ItemAt.
  void Save(const std::wstring& path);

  /// Takes the menu of a readable document in the place of all that is there, as one step.
  void Import(const std::wstring& path, FileSystem& files);
  void Export(const std::wstring& path, FileSystem& files) const;

  Definition AsDefinition() const { return DefinitionOf(*m_top, m_header); }
  /// The item of that place (0-based) in the definition; null beyond the last.
  MenuItem* ItemAt(std::size_t index);

 private:
  void Show(const Definition& definition);

  MenuFile m_file;
  MenuItem::Owner m_top;
  clsFileHeader m_header;
  History m_history;
  EditListener* m_listener = nullptr;
};

}  // namespace orvane::designer
