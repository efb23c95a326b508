#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Locale.h"
#include "platform/MessageBoxes.h"
#include "platform/Tcp.h"
#include "support/CodePage.h"
#include "support/Scrambler.h"

namespace orvane {

/// The diagnostic log: lines of entry, exit, values, errors and times, to a file, a TCP listener or
/// both. Does nothing until it is initialised.
class clsTrace {
 public:
  static constexpr std::int32_t FlagReset = 1;       // Initialize: empty the file
  static constexpr std::int32_t FlagAutoCommit = 2;  // Initialize: open the file for each line
  static constexpr std::int32_t FlagEntry = 4;       // Output, like the three below
  static constexpr std::int32_t FlagExit = 8;
  static constexpr std::int32_t FlagNoTime = 16;
  static constexpr std::int32_t FlagError = 32;
  static constexpr std::int32_t FlagEncrypt = 64;    // Initialize: scrambled records, not lines
  static constexpr std::int32_t FlagInternet = 128;  // Initialize: lines go to a TCP listener

  /// All are kept and outlive the trace.
  clsTrace(FileSystem& files, MessageBoxes& boxes, Clock& clock, Locale& locale, Tcp& tcp,
           const CodePage& codePage);
  ~clsTrace();
  clsTrace(const clsTrace&) = delete;
  clsTrace& operator=(const clsTrace&) = delete;

  std::wstring InternetPort() const { return std::to_wstring(m_lInternetPort); }
  /// Error 13 or 6 for what is no number.
  void InternetPort(std::wstring_view port);
  const std::wstring& InternetAddress() const { return m_szInternetAddress; }
  void InternetAddress(std::wstring address) { m_szInternetAddress = std::move(address); }
  bool ShowErrors() const { return m_bShowErrors; }
  void ShowErrors(bool show) { m_bShowErrors = show; }
  bool Encrypt() const { return m_bEncrypt; }
  void Encrypt(bool encrypt) { m_bEncrypt = encrypt; }
  std::int32_t Indent() const { return m_lIndent; }
  void Indent(std::int32_t indent) { m_lIndent = indent; }
  const std::wstring& Password() const { return m_szPassword; }
  void Password(std::wstring password);
  bool IsInitialised() const { return m_bInitialised; }

  bool Initialize(const std::wstring& file, std::int32_t flags);
  void Terminate();
  /// Ends it, and forgets its connection, its timers and that errors are not to be shown.
  void Renew();
  void Output(const std::wstring& text, std::int32_t flags);
  /// One line as the file gets it.
  std::wstring FormatLine(const std::wstring& text, std::int32_t flags) const;
  void Push(const std::wstring& text) { Output(text, FlagEntry); }
  void Pop(bool checkError);
  void CheckForError();
  static std::wstring ToHex(std::int32_t value);

  // Timers 1 to 16, in milliseconds. Error 9 for another index, 6 when the counter runs over.
  void TimerStart(std::int16_t timer);
  void TimerPause(std::int16_t timer);
  void TimerResume(std::int16_t timer);
  std::int32_t GetTime(std::int16_t timer) const;
  /// The milliseconds since the start, logged with the text unless that is empty.
  std::int32_t TimerStop(const std::wstring& text, std::int16_t timer);

  // Each is its own inverse.
  std::wstring EncryptString(const std::wstring& text);
  std::wstring EncryptStringAscii(const std::wstring& text) {
    return m_scrambler.Scramble(text, m_codePage);
  }
  /// The byte form of EncryptStringAscii.
  void EncryptBytes(std::span<std::byte> bytes) { m_scrambler.Scramble(bytes); }

  /// "~" and the ANSI code of each character as three digits, and back from the digits alone
  /// (Error 13 for a group that is no number).
  std::wstring PasswordToHex(std::wstring_view text) const;
  std::wstring HexToPassword(std::wstring_view digits) const;

 private:
  void OpenOutputFile(bool append);
  void CloseOutputFile() { m_hFile.reset(); }
  void WriteToFile(const std::wstring& line);
  void Connect();
  void Send(const std::wstring& message);
  std::wstring Timestamp() const;
  std::int32_t& Slot(std::int16_t timer);
  std::int32_t SinceSlot(std::int16_t timer);

  FileSystem& m_files;
  MessageBoxes& m_boxes;
  Clock& m_clock;
  Locale& m_locale;
  Tcp& m_tcp;
  const CodePage& m_codePage;

  bool m_bShowErrors = true;
  std::wstring m_szPassword{Scrambler::ProductPassword};
  Scrambler m_scrambler;
  bool m_bInitialised = false;
  std::unique_ptr<OutputFile> m_hFile;
  std::wstring m_szFile;
  std::int32_t m_lFlags = 0;
  std::int32_t m_lIndent = 0;
  bool m_bEncrypt = false;
  std::array<std::int32_t, 16> m_alTimer{};
  std::unique_ptr<TcpConnection> m_oSocket;
  std::wstring m_szInternetAddress = L"127.0.0.1";
  std::int32_t m_lInternetPort = 12000;
};

}  // namespace orvane
