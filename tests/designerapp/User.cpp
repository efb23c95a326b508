#include "designerapp/User.h"

#include <iterator>
#include <map>

namespace orvane::test {
namespace {

const std::map<std::wstring, WORD> Names = {
    {L"UP", VK_UP},        {L"DOWN", VK_DOWN},  {L"LEFT", VK_LEFT},   {L"RIGHT", VK_RIGHT},
    {L"ENTER", VK_RETURN}, {L"ESC", VK_ESCAPE}, {L"TAB", VK_TAB},     {L"DEL", VK_DELETE},
    {L"HOME", VK_HOME},    {L"END", VK_END},    {L"SPACE", VK_SPACE}, {L"F2", VK_F2},
    {L"F5", VK_F5},        {L"F6", VK_F6}};

const std::map<wchar_t, WORD> Held = {{L'^', VK_CONTROL}, {L'%', VK_MENU}, {L'+', VK_SHIFT}};

}  // namespace

void User::Key(WORD key, bool up) {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = key;
  event.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  m_events.push_back(event);
}

void User::Letter(wchar_t letter) {
  for (const DWORD up : {0UL, DWORD{KEYEVENTF_KEYUP}}) {
    INPUT event{};
    event.type = INPUT_KEYBOARD;
    event.ki.wScan = letter;
    event.ki.dwFlags = KEYEVENTF_UNICODE | up;
    m_events.push_back(event);
  }
}

void User::Send(const std::wstring& keys) {
  std::vector<WORD> held;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (const auto modifier = Held.find(keys[i]); modifier != Held.end()) {
      held.push_back(modifier->second);
      Key(held.back(), false);
      continue;
    }
    WORD key = 0;
    if (keys[i] == L'{') {
      const std::size_t end = keys.find(L'}', i);
      key = Names.at(keys.substr(i + 1, end - i - 1));
      i = end;
    } else if (!held.empty()) {
      key = static_cast<WORD>(keys[i] - L'a' + L'A');
    }
    if (key) {
      Key(key, false);
      Key(key, true);
    } else {
      Letter(keys[i]);
    }
    for (; !held.empty(); held.pop_back()) Key(held.back(), true);
  }
  SendInput(static_cast<UINT>(m_events.size()), m_events.data(), sizeof(INPUT));
  m_events.clear();
}

User& User::Type(const std::wstring& keys) {
  Send(keys);
  Wait();
  return *this;
}

User& User::Later(const std::wstring& keys) {
  static std::wstring s_later;
  s_later = keys;
  SetTimer(nullptr, 0, 1000, [](HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    User().Send(s_later);
  });
  return *this;
}

void User::Drag(POINT from, POINT to) {
  const auto mouse = [](POINT at, DWORD button) {
    INPUT event{};
    event.type = INPUT_MOUSE;
    event.mi.dx = MulDiv(at.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    event.mi.dy = MulDiv(at.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
    event.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | button;
    return event;
  };
  const POINT onTheWay{(from.x + to.x) / 2 + 20, (from.y + to.y) / 2};
  INPUT events[] = {mouse(from, 0), mouse(from, MOUSEEVENTF_LEFTDOWN), mouse(onTheWay, 0),
                    mouse(to, 0), mouse(to, MOUSEEVENTF_LEFTUP)};
  SendInput(std::size(events), events, sizeof(INPUT));
  Wait();
}

}  // namespace orvane::test
