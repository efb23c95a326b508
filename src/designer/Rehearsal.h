#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FileOperations.h"
#include "platform/FileSystem.h"
#include "platform/Keyboard.h"
#include "platform/Launcher.h"
#include "platform/MessageBoxes.h"
#include "platform/Platform.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/Shell.h"
#include "platform/Windows.h"

namespace orvane::designer {

/// What a rehearsed command would have done, sentence by sentence.
using Script = std::vector<std::wstring>;

// The nouns through which commands reach the world, each on top of the real one: looking goes
// through, doing becomes a sentence.

/// A file of one name is what the designer says it is.
class RehearsedFiles : public FileSystem {
 public:
  RehearsedFiles(FileSystem& real, Script& script) : m_real(real), m_script(script) {}

  void Put(std::wstring path, std::vector<std::byte> bytes) {
    m_path = std::move(path);
    m_bytes = std::move(bytes);
  }

  std::optional<std::vector<std::byte>> Read(const std::wstring& path, std::size_t limit,
                                             const Patience& patience) override;
  std::optional<std::uint32_t> Attributes(const std::wstring& path,
                                          const Patience& patience) override {
    return m_real.Attributes(path, patience);
  }
  std::optional<FileIdentity> Identity(const std::wstring& path,
                                       const Patience& patience) override {
    return m_real.Identity(path, patience);
  }
  std::unique_ptr<DirectoryListing> List(const std::wstring& folder,
                                         const Patience& patience) override {
    return m_real.List(folder, patience);
  }
  std::wstring ShortName(const std::wstring& path, const Patience& patience) override {
    return m_real.ShortName(path, patience);
  }
  bool LiesOnNetwork(const std::wstring& path) override { return m_real.LiesOnNetwork(path); }
  std::wstring WorkingDirectory() override { return m_real.WorkingDirectory(); }
  std::unique_ptr<OutputFile> OpenToWrite(const std::wstring& path, Open how) override;
  bool Remove(const std::wstring&) override { return true; }
  bool Replace(const std::wstring& from, const std::wstring& to) override;
  bool ChangeDirectory(const std::wstring&) override { return true; }
  std::uint32_t LastError() const override { return m_real.LastError(); }

 private:
  FileSystem& m_real;
  Script& m_script;
  std::wstring m_path;
  std::vector<std::byte> m_bytes;
};

class RehearsedRegistry : public Registry {
 public:
  explicit RehearsedRegistry(Registry& real) : m_real(real) {}

  std::int32_t OpenToRead(Hive hive, const std::wstring& path,
                          std::unique_ptr<RegistryKey>& key) override {
    return m_real.OpenToRead(hive, path, key);
  }
  std::int32_t OpenToWrite(Hive hive, const std::wstring& path,
                           std::unique_ptr<RegistryKey>& key) override;

 private:
  Registry& m_real;
};

class RehearsedLauncher : public Launcher {
 public:
  RehearsedLauncher(Shell& shell, Script& script) : m_shell(shell), m_script(script) {}

  std::int32_t Open(const Execution& execution) override;
  bool OpenEx(const Execution& execution) override;
  bool Start(const std::wstring& program, const std::wstring& commandLine,
             const std::wstring& directory) override;
  std::intptr_t ShellBrowser(WindowHandle) override { return 0; }
  std::int32_t BrowseObject(std::intptr_t, const ItemIdList& item) override;
  void BrowsingDone(WindowHandle) override {}

 private:
  std::wstring NameOf(const ItemIdList& item);

  Shell& m_shell;
  Script& m_script;
};

class RehearsedClipboard : public Clipboard {
 public:
  explicit RehearsedClipboard(Script& script) : m_script(script) {}

  bool Clear() override { return true; }
  bool SetText(const std::wstring& text) override;

 private:
  Script& m_script;
};

class RehearsedClock : public Clock {
 public:
  RehearsedClock(Clock& real, Script& script) : m_real(real), m_script(script) {}

  std::uint32_t Ticks() override { return m_real.Ticks(); }
  LocalTime Now() override { return m_real.Now(); }
  void Pause(std::uint32_t milliseconds) override;

 private:
  Clock& m_real;
  Script& m_script;
};

class RehearsedKeyboard : public Keyboard {
 public:
  explicit RehearsedKeyboard(Script& script) : m_script(script) {}

  bool IsDown(std::uint16_t) override { return false; }
  void Press(std::uint16_t virtualKey, bool up) override;
  WindowHandle Front() override { return WindowHandle{m_front}; }
  bool Type(const std::vector<KeyText>& texts) override;
  void Pause(std::uint32_t milliseconds) override;

 private:
  Script& m_script;
  std::uint32_t m_front = 1;  // another window once the Run dialog is open
};

class RehearsedOperations : public FileOperations {
 public:
  explicit RehearsedOperations(Script& script) : m_script(script) {}

  std::int32_t Run(WindowHandle owner, Function function, const FileNames& from,
                   const std::wstring& to, std::uint16_t flags) override;

 private:
  Script& m_script;
};

class RehearsedDialogs : public Dialogs {
 public:
  explicit RehearsedDialogs(Script& script) : m_script(script) {}

  bool ShowCopyTo(WindowHandle owner, CopyToModel& model) override;
  bool ShowProgress(WindowHandle owner, ProgressModel& model) override;
  Picked Browse(WindowHandle owner, const ItemIdList& root, const std::wstring& title,
                std::uint32_t flags, BrowseModel& model) override;

 private:
  Script& m_script;
};

class RehearsedBoxes : public MessageBoxes {
 public:
  explicit RehearsedBoxes(Script& script) : m_script(script) {}

  Answer Show(const std::wstring& text, const std::wstring& title, Icon icon,
              Buttons buttons) override;

 private:
  Script& m_script;
};

class RehearsedWindows : public Windows {
 public:
  RehearsedWindows(Windows& real, Script& script) : m_real(real), m_script(script) {}

  WindowHandle Parent(WindowHandle window) override { return m_real.Parent(window); }
  std::wstring ClassName(WindowHandle window) override { return m_real.ClassName(window); }
  std::wstring Caption(WindowHandle window) override { return m_real.Caption(window); }
  WindowHandle Active() override { return m_real.Active(); }
  WindowHandle Find(const std::wstring& className) override { return m_real.Find(className); }
  bool Post(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
            std::intptr_t lParam) override;
  std::optional<std::intptr_t> Send(WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t,
                                    std::uint32_t) override {
    return std::nullopt;
  }
  void RunMessages(std::uint32_t) override {}

 private:
  Windows& m_real;
  Script& m_script;
};

/// The desktop with everything that leaves a trace on it replaced.
class Rehearsal {
 public:
  explicit Rehearsal(const Platform& real);
  Rehearsal(const Rehearsal&) = delete;
  Rehearsal& operator=(const Rehearsal&) = delete;

  const Platform& Bundle() const { return m_platform; }
  RehearsedFiles& Files() { return m_files; }

  /// What was done since the last call.
  Script Take() { return std::exchange(m_script, {}); }

 private:
  Script m_script;
  RehearsedFiles m_files;
  RehearsedRegistry m_registry;
  RehearsedLauncher m_launcher;
  RehearsedClipboard m_clipboard;
  RehearsedClock m_clock;
  RehearsedKeyboard m_keyboard;
  RehearsedOperations m_operations;
  RehearsedDialogs m_dialogs;
  RehearsedBoxes m_boxes;
  RehearsedWindows m_windows;
  Platform m_platform;
};

}  // namespace orvane::designer
