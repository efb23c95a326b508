#include "support/clsTrace.h"

#include <algorithm>
#include <limits>

#include "support/Error.h"
#include "support/Number.h"
#include "support/ProductName.h"
#include "support/ThreadState.h"
#include "support/Trace.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

constexpr std::byte TextTag{8};  // of a scrambled record

std::wstring TwoDigits(int number) {
  return {static_cast<wchar_t>(L'0' + number / 10 % 10), static_cast<wchar_t>(L'0' + number % 10)};
}

/// The 16-bit little-endian length of a record or message. What is longer is cut there.
std::vector<std::byte> LengthFirst(std::vector<std::byte> bytes) {
  constexpr std::size_t most = std::numeric_limits<std::uint16_t>::max();
  bytes.resize(std::min(bytes.size(), most));
  const std::byte length[] = {static_cast<std::byte>(bytes.size() & 0xFF),
                              static_cast<std::byte>(bytes.size() >> 8)};
  bytes.insert(bytes.begin(), std::begin(length), std::end(length));
  return bytes;
}

std::int32_t Difference(std::int32_t later, std::int32_t earlier) {
  const std::int64_t difference = std::int64_t{later} - earlier;
  if (difference != static_cast<std::int32_t>(difference))
    throw Error(Error::Overflow, L"Overflow");
  return static_cast<std::int32_t>(difference);
}

}  // namespace

clsTrace::clsTrace(FileSystem& files, MessageBoxes& boxes, Clock& clock, Locale& locale, Tcp& tcp,
                   const CodePage& codePage)
    : m_files(files),
      m_boxes(boxes),
      m_clock(clock),
      m_locale(locale),
      m_tcp(tcp),
      m_codePage(codePage) {}

clsTrace::~clsTrace() {
  if (m_bInitialised) Terminate();
}

void clsTrace::InternetPort(std::wstring_view port) {
  m_lInternetPort = ParseNumber(port);
}

void clsTrace::Password(std::wstring password) {
  m_szPassword = std::move(password);
  m_scrambler = Scrambler(m_szPassword);
}

bool clsTrace::Initialize(const std::wstring& file, std::int32_t flags) {
  if (m_bInitialised) Terminate();
  m_szFile = file;
  m_lFlags = flags;
  if ((flags & FlagReset) && !file.empty()) {
    OpenOutputFile(false);
    CloseOutputFile();
  }
  if (flags & FlagInternet)
    Connect();
  else if (!(flags & FlagAutoCommit) && !file.empty())
    OpenOutputFile(true);
  m_bInitialised = true;
  ++initialisedTraces;
  return true;
}

void clsTrace::Terminate() {
  CloseOutputFile();
  m_szFile.clear();
  m_lFlags = 0;
  m_lIndent = 0;
  if (m_bInitialised) --initialisedTraces;
  m_bInitialised = false;
}

void clsTrace::Renew() {
  Terminate();
  m_oSocket.reset();
  m_alTimer = {};
  m_bShowErrors = true;
}

void clsTrace::Output(const std::wstring& text, std::int32_t flags) {
  if (!m_bInitialised) return;
  if (m_lFlags & FlagAutoCommit) OpenOutputFile(true);
  if (m_oSocket && (m_lFlags & FlagInternet)) Send(L"1 " + std::to_wstring(flags) + L" " + text);
  if (m_hFile) WriteToFile(FormatLine(text, flags));
  if (flags & FlagEntry) ++m_lIndent;
  if (flags & FlagExit) m_lIndent = std::max(m_lIndent - 1, 0);
  if (m_lFlags & FlagAutoCommit) CloseOutputFile();
}

std::wstring clsTrace::FormatLine(const std::wstring& text, std::int32_t flags) const {
  std::wstring line = flags & FlagNoTime ? L" " : Timestamp() + L" ";
  line += flags & FlagEntry ? L'>' : flags & FlagExit ? L'<' : L' ';
  line += flags & FlagError ? L'!' : L' ';
  line += L' ';
  line.append(2 * static_cast<std::size_t>(std::max(m_lIndent, 0)), L' ');
  const bool isExit = !(flags & FlagEntry) && (flags & FlagExit);
  return line + (isExit && text.empty() ? L"(Exit)" : text);
}

std::wstring clsTrace::Timestamp() const {
  const LocalTime now = m_clock.Now();
  const std::wstring day = m_locale.Text(Locale::Fact::DateSeparator);
  const std::wstring time = m_locale.Text(Locale::Fact::TimeSeparator);
  return TwoDigits(now.day) + day + m_locale.Text(Locale::Fact::MonthAbbreviation, now.month) +
         day + TwoDigits(now.year) + L" @ " + std::to_wstring(now.hour) + time +
         TwoDigits(now.minute) + time + TwoDigits(now.second);
}

void clsTrace::Pop(bool checkError) {
  if (checkError) CheckForError();
  Output({}, FlagExit);
}

void clsTrace::CheckForError() {
  const ThreadState* thread = ThreadState::Current();
  if (!thread || thread->pending.number == 0) return;
  const PendingError& error = thread->pending;
  std::wstring line = L"*E* " + ToHex(error.number) + L" - " + error.description;
  if (error.osError != 0) line += L" - " + std::to_wstring(error.osError);
  if (!error.source.empty()) line += L" (" + error.source + L")";
  Output(line, FlagError);
}

std::wstring clsTrace::ToHex(std::int32_t value) {
  std::wstring hex = L"0x";
  for (int shift = 28; shift >= 0; shift -= 4)
    hex += L"0123456789ABCDEF"[static_cast<std::uint32_t>(value) >> shift & 15];
  return hex;
}

void clsTrace::OpenOutputFile(bool append) {
  CloseOutputFile();
  m_hFile = m_files.OpenToWrite(m_szFile,
                                append ? FileSystem::Open::Append : FileSystem::Open::CreateAnew);
  if (m_hFile || !m_bShowErrors) return;
  // Messages are dispatched while the box is open; what they log must not put a second one over it.
  m_bShowErrors = false;
  const auto answer =
      m_boxes.Show(L"Could not open the debugging output file!\r\n\r\nShow this error again?",
                   g_szAppTitle, MessageBoxes::Icon::Stop, MessageBoxes::Buttons::YesNo);
  m_bShowErrors = answer == MessageBoxes::Answer::Yes;
}

void clsTrace::WriteToFile(const std::wstring& line) {
  std::vector<std::byte> bytes = m_codePage.Encode(line);
  if (m_lFlags & FlagEncrypt) {
    m_scrambler.Scramble(bytes);
    bytes = LengthFirst(std::move(bytes));
    bytes.insert(bytes.begin(), {TextTag, std::byte{0}});
  } else {
    bytes.insert(bytes.end(), {std::byte{'\r'}, std::byte{'\n'}});
  }
  m_hFile->Write(bytes);
}

void clsTrace::Connect() {
  m_oSocket.reset();
  if (m_lInternetPort < 0 || m_lInternetPort > std::numeric_limits<std::uint16_t>::max()) return;
  m_oSocket = m_tcp.Connect(m_szInternetAddress, static_cast<std::uint16_t>(m_lInternetPort));
  if (m_oSocket) Send(std::wstring(L"0 0 ") + g_szAppTitle);
}

void clsTrace::Send(const std::wstring& message) {
  if (!m_oSocket->Send(LengthFirst(m_codePage.Encode(message)))) m_oSocket.reset();
}

std::int32_t& clsTrace::Slot(std::int16_t timer) {
  if (timer < 1 || timer > static_cast<std::int16_t>(m_alTimer.size()))
    throw Error(Error::OutOfRange, L"Subscript out of range");
  return m_alTimer[static_cast<std::size_t>(timer - 1)];
}

std::int32_t clsTrace::SinceSlot(std::int16_t timer) {
  return Difference(static_cast<std::int32_t>(m_clock.Ticks()), Slot(timer));
}

void clsTrace::TimerStart(std::int16_t timer) {
  Slot(timer) = static_cast<std::int32_t>(m_clock.Ticks());
}

// Turns a start into the time so far, and that back into a start moved by it.
void clsTrace::TimerPause(std::int16_t timer) {
  Slot(timer) = SinceSlot(timer);
}

void clsTrace::TimerResume(std::int16_t timer) {
  Slot(timer) = SinceSlot(timer);
}

std::int32_t clsTrace::GetTime(std::int16_t timer) const {
  return const_cast<clsTrace*>(this)->Slot(timer);
}

std::int32_t clsTrace::TimerStop(const std::wstring& text, std::int16_t timer) {
  const std::int32_t elapsed = SinceSlot(timer);
  if (!text.empty())
    Output(text + L": " + std::to_wstring(elapsed) + L"ms\t(Timer " + std::to_wstring(timer) + L")",
           0);
  return elapsed;
}

std::wstring clsTrace::EncryptString(const std::wstring& text) {
  std::vector<std::byte> bytes = ToUtf16(text);
  m_scrambler.Scramble(bytes);
  return FromUtf16(bytes);
}

std::wstring clsTrace::PasswordToHex(std::wstring_view text) const {
  std::wstring digits = L"~";
  for (std::byte byte : m_codePage.Encode(text)) {
    const int code = std::to_integer<int>(byte);
    digits += static_cast<wchar_t>(L'0' + code / 100) + TwoDigits(code % 100);
  }
  return digits;
}

std::wstring clsTrace::HexToPassword(std::wstring_view digits) const {
  std::vector<std::byte> bytes;
  for (; !digits.empty(); digits.remove_prefix(std::min<std::size_t>(3, digits.size()))) {
    const std::int32_t code = ParseNumber(digits.substr(0, 3));
    if (code < 0 || code > 255) throw Error(Error::InvalidArgument, L"Invalid procedure call");
    bytes.push_back(static_cast<std::byte>(code));
  }
  return m_codePage.Decode(bytes);
}

}  // namespace orvane
