#pragma once

#include <cstdint>
#include <string>

#include "menudata/DefinitionFile.h"
#include "menudata/clsFileHeader.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneData.h"
#include "platform/Shell.h"
#include "support/Scrambler.h"

namespace orvane {

/// Reads item records from the menu definition file, and makes the texts that are made of them: the
/// entry in a recently-used list, the caption, the help text, the one-line summary.
class clsOrvaneDataTools {
 public:
  /// All are kept and outlive the object.
  clsOrvaneDataTools(const clsOptions& options, const CodePage& codePage, Scrambler& scrambler,
                     Shell& shell)
      : m_options(options), m_codePage(codePage), m_scrambler(scrambler), m_shell(shell) {}

  static constexpr std::int32_t MinVersion() { return 1; }
  static constexpr std::int32_t CurrentVersion() { return 1; }
  static constexpr std::int32_t MaxVersion() { return 1; }

  // Each reads the next value or values of the file: CorruptFile when the file's layout is broken,
  // Error 13 or 6 where a number should stand and does not.

  std::int32_t File_ReadVersion(DefinitionFile& file) const;
  /// False with fewer than two numbers, `header` then untouched.
  bool File_ReadHeader(DefinitionFile& file, clsFileHeader& header) const;
  /// Parent, type and options; false unless they are exactly three numbers, nothing is set then.
  bool File_ReadItemHeader(DefinitionFile& file, std::int32_t& parentIndex,
                           clsOrvaneData& item) const;
  std::wstring File_ReadString(DefinitionFile& file) const;
  /// The same as a record's field.
  FieldText ReadField(DefinitionFile& file) const;
  /// The values that belong to the item's type.
  void ReadData(DefinitionFile& file, clsOrvaneData& item) const;

  /// The enciphered list entry of an item, and back.
  std::wstring CreateHistoryMRU(const clsOrvaneData& item) const;
  void BreakdownHistoryMRU(const std::wstring& text, clsOrvaneData& item) const;

  /// The caption as the menu shows it; `trim` is set for the kinds whose caption is the user's.
  std::wstring GetMenuCaption(const clsOrvaneData& item, bool& trim) const;
  /// Cuts the text after its "&1 " to `maximum` characters and "..."; 0 or less never cuts.
  static std::wstring TrimCaption(std::wstring caption, std::int32_t maximum);
  /// The text for the status bar; empty for what has none.
  std::wstring GetExplorerDescription(const clsOrvaneData& item, const std::wstring& currentFile,
                                      const std::wstring& currentFolder) const;
  std::wstring GetDesignerDescription(const clsOrvaneData& item) const;

 private:
  const clsOptions& m_options;
  const CodePage& m_codePage;
  Scrambler& m_scrambler;
  Shell& m_shell;
};

}  // namespace orvane
