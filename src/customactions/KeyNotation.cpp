#include "customactions/KeyNotation.h"

#include <algorithm>
#include <array>
#include <optional>

#include "support/Error.h"
#include "support/Number.h"
#include "support/Text.h"
#include "support/Trace.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

struct NamedKey {
  std::wstring_view name;
  std::uint16_t code;
};

constexpr std::uint16_t Enter = 0x0D;
constexpr std::uint16_t F1 = 0x70;

constexpr NamedKey NamedKeys[] = {
    {L"add", 0x6B},      {L"backspace", 0x08}, {L"bs", 0x08},     {L"bksp", 0x08},
    {L"break", 0x03},    {L"capslock", 0x14},  {L"clear", 0x0C},  {L"del", 0x2E},
    {L"delete", 0x2E},   {L"divide", 0x6F},    {L"down", 0x28},   {L"end", 0x23},
    {L"enter", Enter},   {L"esc", 0x1B},       {L"escape", 0x1B}, {L"help", 0x2F},
    {L"home", 0x24},     {L"ins", 0x2D},       {L"insert", 0x2D}, {L"left", 0x25},
    {L"multiply", 0x6A}, {L"numlock", 0x90},   {L"pgdn", 0x22},   {L"pgup", 0x21},
    {L"prtsc", 0x2C},    {L"return", Enter},   {L"right", 0x27},  {L"scrolllock", 0x91},
    {L"subtract", 0x6D}, {L"tab", 0x09},       {L"up", 0x26},
};

// The modifiers in the order in which they are pressed; a set of them is a bit mask over this list.
constexpr std::array<std::uint16_t, 3> Modifiers = {Keyboard::Shift, Keyboard::Control,
                                                    Keyboard::Alt};

unsigned ModifierOf(wchar_t c) {
  return c == L'+' ? 1u : c == L'^' ? 2u : c == L'%' ? 4u : 0u;
}

/// F1 to F16.
std::optional<std::uint16_t> FunctionKey(std::wstring_view lowerName) {
  if (lowerName.size() < 2 || lowerName.size() > 3 || lowerName[0] != L'f') return {};
  const std::int32_t number = ParseLeadingNumber(lowerName.substr(1));
  if (number < 1 || number > 16 || lowerName.substr(1) != std::to_wstring(number)) return {};
  return static_cast<std::uint16_t>(F1 + number - 1);
}

std::uint16_t KeyOfName(std::wstring_view name) {
  const std::wstring lower = LowerCase(name);
  for (const NamedKey& key : NamedKeys) {
    if (key.name == lower) return key.code;
  }
  if (const auto key = FunctionKey(lower)) return *key;
  throw Error(Error::InvalidArgument, L"No key is named {" + std::wstring(name) + L"}");
}

/// The key of a letter, a digit or one of the marks whose keys are named alike everywhere.
std::optional<std::uint16_t> CommonKey(char16_t unit) {
  if (unit >= u'a' && unit <= u'z') return static_cast<std::uint16_t>(unit - 32);
  if ((unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') || unit == u' ') return unit;
  constexpr std::u16string_view Marks = u"+,-.";
  constexpr std::uint16_t FirstMark = 0xBB;
  const std::size_t mark = Marks.find(unit);
  if (mark == Marks.npos) return {};
  return static_cast<std::uint16_t>(FirstMark + mark);
}

class NotationParser {
 public:
  explicit NotationParser(std::wstring_view text) : m_text(text) {}

  std::vector<KeyEvent> Parse() {
    while (m_position < m_text.size()) {
      m_start = m_position;
      ParseNext();
    }
    if (m_pending == 0 && !m_groups.empty()) m_start = m_groups.back().place;
    if (m_pending || !m_groups.empty()) Fail(L"The text ends within a group or after a modifier");
    return std::move(m_events);
  }

  // After a failure: what could not be parsed.
  std::size_t Start() const { return m_start; }
  std::size_t End() const { return std::max(m_position, m_start + 1); }

 private:
  struct Group {
    unsigned pressed;  // the modifiers to release at its end
    std::size_t place;
  };

  [[noreturn]] static void Fail(const wchar_t* why) { throw Error(Error::InvalidArgument, why); }

  void ParseNext() {
    const wchar_t c = m_text[m_position];
    if (const unsigned modifier = ModifierOf(c)) {
      m_pending |= modifier;
      ++m_position;
    } else if (c == L'{') {
      ParseBraces();
    } else {
      ++m_position;
      if (c == L'(') {
        OpenGroup();
      } else if (c == L')') {
        CloseGroup();
      } else if (c == L'}') {
        Fail(L"A } without {");
      } else if (c == L'~') {
        StrokeKey(Enter, 1);
      } else {
        StrokeText(m_text.substr(m_position - 1, 1), 1);
      }
    }
  }

  /// {NAME}, {NAME n}, {c}, {c n}: the first character behind the brace is always part of the name,
  /// which is how {}} and {{} are written.
  void ParseBraces() {
    const std::size_t start = m_position + 1;
    const std::size_t close = start < m_text.size() ? m_text.find(L'}', start + 1) : m_text.npos;
    if (close == m_text.npos) Fail(L"A { without }");
    const std::wstring_view inner = m_text.substr(start, close - start);
    m_position = close + 1;

    const std::size_t blank = inner.find(L' ', 1);
    const std::wstring_view name = inner.substr(0, blank);
    const std::int32_t count = blank == inner.npos ? 1 : ParseNumber(inner.substr(blank));
    if (count < 0) Fail(L"A negative repeat count");
    if (IsOneCharacter(name)) {
      StrokeText(name, static_cast<std::size_t>(count));
    } else {
      StrokeKey(KeyOfName(name), static_cast<std::size_t>(count));
    }
  }

  /// Whether the name is one character; beyond U+FFFF it takes two units on Windows.
  static bool IsOneCharacter(std::wstring_view name) {
    return name.size() == 1 ||
           (name.size() == 2 && (name[0] & ~0x3FF) == 0xD800 && (name[1] & ~0x3FF) == 0xDC00);
  }

  void OpenGroup() { m_groups.push_back({HoldPending(), m_start}); }

  void CloseGroup() {
    if (m_groups.empty()) Fail(L"A ) without (");
    if (m_pending) Fail(L"A modifier before )");
    Release(m_groups.back().pressed);
    m_groups.pop_back();
  }

  void StrokeKey(std::uint16_t code, std::size_t count) {
    const unsigned pressed = HoldPending();
    CheckRoom(count, 2);
    for (; count > 0; --count) Stroke({.code = code});
    Release(pressed);
  }

  void StrokeText(std::wstring_view text, std::size_t count) {
    const unsigned pressed = HoldPending();
    const std::u16string units = ToUnits(text);
    CheckRoom(count, 2 * units.size());
    for (; count > 0; --count) {
      for (const char16_t unit : units) Stroke(EventOf(unit));
    }
    Release(pressed);
  }

  /// How a character is typed: while a modifier is held by its key, so that the window sees the
  /// shortcut. With Shift alone that is left to what every layout has in common.
  KeyEvent EventOf(char16_t unit) const {
    if (m_held == 0) return {.kind = KeyEvent::Kind::Character, .code = unit};
    if (const auto key = CommonKey(unit)) return {.code = *key};
    const bool isShortcut = (m_held & ~ModifierOf(L'+')) != 0;
    if (!isShortcut) return {.kind = KeyEvent::Kind::Character, .code = unit};
    return {.kind = KeyEvent::Kind::Shortcut, .code = LowerUnit(unit)};
  }

  /// As with Latin letters, the case of any other says nothing of Shift.
  static std::uint16_t LowerUnit(char16_t unit) {
    return static_cast<std::uint16_t>(LowerCase(static_cast<wchar_t>(unit)));
  }

  void Stroke(KeyEvent event) {
    m_events.push_back(event);
    event.up = true;
    m_events.push_back(event);
  }

  /// Presses the waiting modifiers that are not held yet; the set that has to be released.
  unsigned HoldPending() {
    const unsigned pressed = m_pending & ~m_held;
    CheckRoom(1, 2 * Modifiers.size());
    for (std::size_t i = 0; i < Modifiers.size(); ++i) {
      if (pressed >> i & 1u) m_events.push_back({.code = Modifiers[i]});
    }
    m_held |= pressed;
    m_pending = 0;
    return pressed;
  }

  void Release(unsigned pressed) {
    for (std::size_t i = Modifiers.size(); i-- > 0;) {
      if (pressed >> i & 1u) m_events.push_back({.code = Modifiers[i], .up = true});
    }
    m_held &= ~pressed;
  }

  /// Throws unless `count` times `each` events fit; the releases at the end always do.
  void CheckRoom(std::size_t count, std::size_t each) const {
    constexpr std::size_t limit = MaxKeyEvents - Modifiers.size();
    if (m_events.size() > limit || count > (limit - m_events.size()) / each)
      throw Error(Error::Overflow, L"Too many keystrokes");
  }

  std::wstring_view m_text;
  std::size_t m_position = 0;
  std::size_t m_start = 0;  // of what is being parsed
  std::vector<KeyEvent> m_events;
  unsigned m_pending = 0;       // modifiers waiting for their key or group
  unsigned m_held = 0;          // modifiers pressed at this place
  std::vector<Group> m_groups;  // the open ones
};

}  // namespace

std::vector<KeyEvent> ParseKeyNotation(std::wstring_view text) {
  return NotationParser(text).Parse();
}

std::optional<KeyFault> FindKeyFault(std::wstring_view text) {
  NotationParser parser(text);
  try {
    parser.Parse();
    return {};
  } catch (const Error& error) {
    return KeyFault{parser.Start(), parser.End() - parser.Start(), error.Description()};
  }
}

bool SendKeys(Keyboard& keyboard, const std::wstring& text) {
  TraceScope scope(L"SendKeys");
  Log(L"szText=", text);
  return keyboard.Type({{text, ParseKeyNotation(text)}});
}

}  // namespace orvane
