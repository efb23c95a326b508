#pragma once

#include <gtest/gtest.h>

#include "customactions/clsCustomActions.h"
#include "customactions/clsProcess.h"
#include "platform/memory/Desktop.h"
#include "support/CodePage.h"

namespace orvane::test {

/// A file reader that counts how often a file is read.
class CountingReader : public FileReader {
 public:
  explicit CountingReader(FileReader& files) : m_files(files) {}

  std::optional<std::vector<std::byte>> Read(const std::wstring& path, std::size_t limit) override {
    ++reads;
    return m_files.Read(path, limit);
  }
  std::optional<std::uint32_t> Attributes(const std::wstring& path,
                                          const Patience& patience) override {
    return m_files.Attributes(path, patience);
  }
  std::unique_ptr<DirectoryListing> List(const std::wstring& folder,
                                         const Patience& patience) override {
    return m_files.List(folder, patience);
  }
  std::wstring ShortName(const std::wstring& path, const Patience& patience) override {
    return m_files.ShortName(path, patience);
  }
  bool LiesOnNetwork(const std::wstring& path) override { return m_files.LiesOnNetwork(path); }
  std::wstring WorkingDirectory() override { return m_files.WorkingDirectory(); }

  int reads = 0;

 private:
  FileReader& m_files;
};

/// A memory desktop with a file of custom actions.
class ActionsFixture : public testing::Test {
 protected:
  void GiveFile(std::string_view text) { desktop.files.AddFile(Path, text); }

  WindowHandle AddWindow(std::wstring className, std::wstring caption,
                         WindowHandle parent = WindowHandle::None) {
    memory::Windows::Window window;
    window.className = std::move(className);
    window.caption = std::move(caption);
    window.parent = parent;
    window.process = 12;
    return desktop.windows.Add(window);
  }

  /// What left the component, one effect a line: "SendKeys abc".
  std::wstring Effects() const {
    std::wstring lines;
    for (const memory::Effect& effect : desktop.effects.All()) {
      lines.append(effect.call.begin(), effect.call.end());
      const auto& value = effect.fields[effect.call == "MessageBox" ? 1 : 0].second;
      if (const auto* text = std::get_if<std::wstring>(&value)) lines += L" " + *text;
      if (const auto* number = std::get_if<std::int64_t>(&value))
        lines += L" " + std::to_wstring(*number);
      lines += L"\n";
    }
    return lines;
  }

  const std::wstring Path = L"C:\\Actions\\CustomActions.ini";
  memory::Desktop desktop;
  CountingReader files{desktop.files};
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsProcess process{desktop.processes, desktop.system};
  ActionServices services{.files = files,
                          .profiles = desktop.profiles,
                          .windows = desktop.windows,
                          .process = process,
                          .keyboard = desktop.keyboard,
                          .clock = desktop.clock,
                          .locale = desktop.locale,
                          .boxes = desktop.boxes,
                          .codePage = codePage};
  clsCustomActions actions{services};
};

}  // namespace orvane::test
