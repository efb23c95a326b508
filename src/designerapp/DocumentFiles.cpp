#include "designerapp/DocumentFiles.h"

#include "designerapp/FileDialogs.h"
#include "menudata/ShellPaths.h"
#include "menudoc/ItemKinds.h"
#include "support/Utf8.h"

namespace orvane::designerapp {
namespace {

constexpr const wchar_t* Title = L"Orvane Designer";

std::wstring InWords(const designer::Document& document, const UnwritableText& error,
                     const designer::MenuItem* item) {
  std::wstring text = document.Title() + L" is not saved.\n\n";
  if (item) {
    const ItemField* field = FindField(item->data.m_lType, DataField(error.Field()));
    text += L"\"" + std::wstring(item->data.Caption()) + L"\"";
    if (field) text += L", " + FromUtf8(field->name).value_or(L"");
    text += L": ";
  }
  return text + error.Description() + L'.';
}

}  // namespace

int DocumentFiles::Ask(const std::wstring& text, UINT style) const {
  return MessageBoxW(m_owner, text.c_str(), Title, style);
}

void DocumentFiles::Start(const std::wstring& path) {
  const std::wstring& named = m_program.globals.options.m_szShellConfigFile;
  if (!path.empty()) {
    Open(path);
  } else if (FileExists(m_program.platform.files, named)) {
    Open(named);
  } else if (!named.empty() && Ask(L"There is no menu yet.\n\nMake the file " + named + L"?",
                                   MB_YESNO | MB_ICONQUESTION) == IDYES) {
    Write(named);
  }
}

bool DocumentFiles::MayLeave() {
  m_program.document.Edits().Pause();
  if (!m_program.document.IsDirty()) return true;
  switch (Ask(L"Save the changes?", MB_YESNOCANCEL | MB_ICONEXCLAMATION)) {
    case IDYES:
      return Save();
    case IDNO:
      return true;
    default:
      return false;
  }
}

bool DocumentFiles::New() {
  if (!MayLeave()) return false;
  m_program.document.New();
  return true;
}

bool DocumentFiles::Open() {
  if (!MayLeave()) return false;
  const std::wstring path = AskFile(m_owner, Files::Menus, m_program.document.File().Path());
  if (path.empty()) return false;
  Read(path);
  return true;
}

bool DocumentFiles::Open(const std::wstring& path) {
  if (!MayLeave()) return false;
  Read(path);
  return true;
}

void DocumentFiles::Read(const std::wstring& path) {
  m_program.document.Open(path);
  Remember(path);
}

void DocumentFiles::Remember(const std::wstring& path) {
  m_program.recent.AddFile(path);
  m_program.recent.Save();
}

bool DocumentFiles::Save() {
  const std::wstring path = m_program.document.File().Path();
  if (path.empty()) return SaveAs();
  if (m_program.document.File().ChangedMeanwhile() &&
      Ask(path + L"\n\nAnother program has changed the file. Overwrite what it wrote?",
          MB_YESNO | MB_ICONEXCLAMATION | MB_DEFBUTTON2) != IDYES)
    return false;
  return Write(path);
}

bool DocumentFiles::SaveAs() {
  const std::wstring path = AskNewFile(m_owner, Files::Menus, m_program.document.File().Path());
  return !path.empty() && Write(path);
}

bool DocumentFiles::Write(const std::wstring& path) {
  try {
    m_program.document.Save(path);
    Remember(path);
    return true;
  } catch (const UnwritableText& error) {
    Ask(InWords(m_program.document, error, m_program.document.ItemAt(error.Item())),
        MB_OK | MB_ICONEXCLAMATION);
    return false;
  }
}

bool DocumentFiles::Import() {
  const std::wstring path = AskFile(m_owner, Files::Documents, {});
  if (path.empty()) return false;
  m_program.document.Import(path, m_program.platform.files);
  return true;
}

bool DocumentFiles::Export() {
  const std::wstring path = AskNewFile(m_owner, Files::Documents, {});
  if (path.empty()) return false;
  m_program.document.Export(path, m_program.platform.files);
  return true;
}

bool DocumentFiles::LookForChanges() {
  designer::Document& document = m_program.document;
  if (m_asking || !document.File().ChangedMeanwhile()) return false;
  const std::wstring path = document.File().Path();
  m_asking = true;
  const int answer = Ask(path + L"\n\nAnother program has changed the file. Read it again" +
                             (document.IsDirty() ? L" and lose the changes made here?" : L"?"),
                         MB_YESNO | MB_ICONQUESTION);
  m_asking = false;
  if (answer != IDYES) {
    document.File().Acknowledge();
    return false;
  }
  document.Open(path);
  return true;
}

}  // namespace orvane::designerapp
