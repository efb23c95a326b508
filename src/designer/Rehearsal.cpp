#include "designer/Rehearsal.h"

#include <algorithm>
#include <chrono>

namespace orvane::designer {
namespace {

constexpr std::size_t ShownCharacters = 400;

std::wstring Quoted(const std::wstring& text) {
  const bool isLong = text.size() > ShownCharacters;
  return L"\"" + (isLong ? text.substr(0, ShownCharacters) + L"..." : text) + L'"';
}

std::wstring InFolder(const std::wstring& folder) {
  return folder.empty() ? L"." : L" in the folder " + folder + L'.';
}

/// Takes a file's bytes and keeps none of them.
class NoFile : public OutputFile {
 public:
  bool Write(std::span<const std::byte>) override { return true; }
};

class NoKey : public RegistryKey {
 public:
  std::int32_t Read(const std::wstring&, RegistryValue&) override { return NotFound; }
  std::int32_t Write(const std::wstring&, const RegistryValue&) override { return 0; }
};

/// Gives up work that takes longer than a user would look at a preview.
class BriefView : public ProgressView {
 public:
  explicit BriefView(ProgressModel& model) : m_model(model) {}

  void ShowFolder(const std::wstring&) override { Look(); }
  void ShowCount(std::size_t) override { Look(); }

 private:
  using Clock = std::chrono::steady_clock;

  void Look() {
    if (Clock::now() - m_start > std::chrono::seconds(1)) m_model.Cancel();
  }

  ProgressModel& m_model;
  Clock::time_point m_start = Clock::now();
};

std::wstring Writing(const std::wstring& path) {
  return L"Writes the file " + path + L'.';
}

std::wstring Waiting(std::uint32_t milliseconds) {
  return L"Waits " + std::to_wstring(milliseconds) + L" milliseconds.";
}

}  // namespace

std::optional<std::vector<std::byte>> RehearsedFiles::Read(const std::wstring& path,
                                                           std::size_t limit,
                                                           const Patience& patience) {
  if (path == m_path) return m_bytes;
  return m_real.Read(path, limit, patience);
}

std::unique_ptr<OutputFile> RehearsedFiles::OpenToWrite(const std::wstring& path, Open) {
  m_script.push_back(Writing(path));
  return std::make_unique<NoFile>();
}

// What was written beside a file and is moved to its place is written there.
bool RehearsedFiles::Replace(const std::wstring& from, const std::wstring& to) {
  std::ranges::replace(m_script, Writing(from), Writing(to));
  return true;
}

std::int32_t RehearsedRegistry::OpenToWrite(Hive, const std::wstring&,
                                            std::unique_ptr<RegistryKey>& key) {
  key = std::make_unique<NoKey>();
  return 0;
}

std::wstring RehearsedLauncher::NameOf(const ItemIdList& item) {
  const std::wstring path = m_shell.Path(item);
  return path.empty() ? m_shell.DisplayName(item) : path;
}

bool RehearsedLauncher::OpenEx(const Execution& execution) {
  const std::wstring what = execution.item ? NameOf(execution.item) : execution.file;
  std::wstring sentence = execution.verb == L"explore" ? L"Explores " : L"Opens ";
  sentence += what;
  if (!execution.parameters.empty())
    sentence += L" with the parameters " + Quoted(execution.parameters);
  m_script.push_back(sentence + InFolder(execution.directory));
  return true;
}

std::int32_t RehearsedLauncher::Open(const Execution& execution) {
  constexpr std::int32_t WentWell = 33;
  OpenEx(execution);
  return WentWell;
}

bool RehearsedLauncher::Start(const std::wstring& program, const std::wstring& commandLine,
                              const std::wstring& directory) {
  m_script.push_back(L"Starts " + program + L" as " + Quoted(commandLine) + InFolder(directory));
  return true;
}

std::int32_t RehearsedLauncher::BrowseObject(std::intptr_t, const ItemIdList& item) {
  m_script.push_back(L"Shows " + NameOf(item) + L" in the window.");
  return 0;
}

bool RehearsedClipboard::SetText(const std::wstring& text) {
  m_script.push_back(L"Puts this on the clipboard: " + Quoted(text));
  return true;
}

void RehearsedClock::Pause(std::uint32_t milliseconds) {
  m_script.push_back(Waiting(milliseconds));
}

void RehearsedKeyboard::Press(std::uint16_t virtualKey, bool up) {
  if (virtualKey != LeftWindows || up) return;
  m_script.push_back(L"Opens the Run dialog.");
  ++m_front;
}

bool RehearsedKeyboard::Type(const std::vector<KeyText>& texts) {
  for (const auto& [text, events] : texts)
    m_script.push_back(L"Types the keys " + Quoted(text) + L'.');
  return true;
}

void RehearsedKeyboard::Pause(std::uint32_t milliseconds) {
  m_script.push_back(Waiting(milliseconds));
}

std::int32_t RehearsedOperations::Run(WindowHandle, Function function, const FileNames& from,
                                      const std::wstring& to, std::uint16_t) {
  const bool moves = function == Function::Move;
  m_script.push_back((moves ? L"Moves " : L"Copies ") + std::to_wstring(from.Count()) +
                     L" selected item(s) to " + to + L'.');
  return 0;
}

bool RehearsedDialogs::ShowCopyTo(WindowHandle, CopyToModel& model) {
  m_script.push_back(L"Asks for a folder: " + Quoted(model.Title()));
  return false;
}

bool RehearsedDialogs::ShowProgress(WindowHandle, ProgressModel& model) {
  m_script.push_back(L"Collects the names in a window with a Cancel button.");
  BriefView view(model);
  model.Run(view);
  return true;
}

Dialogs::Picked RehearsedDialogs::Browse(WindowHandle, const ItemIdList&, const std::wstring& title,
                                         std::uint32_t, BrowseModel&) {
  m_script.push_back(L"Asks for a folder: " + Quoted(title));
  return {};
}

MessageBoxes::Answer RehearsedBoxes::Show(const std::wstring& text, const std::wstring&, Icon,
                                          Buttons buttons) {
  m_script.push_back(L"Says: " + Quoted(text));
  return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

bool RehearsedWindows::Post(WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t) {
  m_script.push_back(L"Asks the taskbar to do it.");
  return true;
}

Rehearsal::Rehearsal(const Platform& real)
    : m_files(real.files, m_script),
      m_registry(real.registry),
      m_launcher(real.shell, m_script),
      m_clipboard(m_script),
      m_clock(real.clock, m_script),
      m_keyboard(m_script),
      m_operations(m_script),
      m_dialogs(m_script),
      m_boxes(m_script),
      m_windows(real.windows, m_script),
      m_platform{.clipboard = m_clipboard,
                 .clock = m_clock,
                 .dialogs = m_dialogs,
                 .operations = m_operations,
                 .files = m_files,
                 .gdi = real.gdi,
                 .icons = real.icons,
                 .keyboard = m_keyboard,
                 .launcher = m_launcher,
                 .locale = real.locale,
                 .menus = real.menus,
                 .boxes = m_boxes,
                 .processes = real.processes,
                 .profiles = real.profiles,
                 .registry = m_registry,
                 .shell = real.shell,
                 .system = real.system,
                 .tcp = real.tcp,
                 .windows = m_windows} {}

}  // namespace orvane::designer
