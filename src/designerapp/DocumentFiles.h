#pragma once

#include <string>

#include "designerapp/Program.h"

namespace orvane::designerapp {

/// What the File menu does, with the questions that go with it. Each answers whether the document
/// is another one, or saved, afterwards.
class DocumentFiles {
 public:
  explicit DocumentFiles(Program& program) : m_program(program) {}

  void Owner(HWND owner) { m_owner = owner; }

  /// The file of the command line or, without one, the file that the settings name, which is made
  /// when the user agrees.
  void Start(const std::wstring& path);
  bool New();
  bool Open();
  bool Open(const std::wstring& path);
  bool Save();
  bool SaveAs();
  bool Import();
  bool Export();
  /// Offers to save; false when the user wants to go on.
  bool MayLeave();
  /// Asks whether to read a file again that another program has changed; true when it was read.
  bool LookForChanges();

 private:
  bool Write(const std::wstring& path);
  void Read(const std::wstring& path);
  void Remember(const std::wstring& path);
  int Ask(const std::wstring& text, UINT style) const;

  Program& m_program;
  HWND m_owner = nullptr;
  bool m_asking = false;
};

}  // namespace orvane::designerapp
