#include "memory/MessageBoxes.h"

#include <algorithm>
#include <span>

namespace orvane::memory {
namespace {

using Boxes = orvane::MessageBoxes;

struct Button {
  const wchar_t* name;
  Boxes::Answer answer;
};

constexpr Button ButtonsOfOk[] = {{L"ok", Boxes::Answer::Ok}};
constexpr Button ButtonsOfOkCancel[] = {{L"ok", Boxes::Answer::Ok},
                                        {L"cancel", Boxes::Answer::Cancel}};
constexpr Button ButtonsOfYesNo[] = {{L"yes", Boxes::Answer::Yes}, {L"no", Boxes::Answer::No}};

struct ButtonRow {
  const wchar_t* name;
  std::span<const Button> buttons;  // the default one first, the refusing one last
};

constexpr ButtonRow Rows[] = {  // in the order of Boxes::Buttons
    {L"ok", ButtonsOfOk},
    {L"okcancel", ButtonsOfOkCancel},
    {L"yesno", ButtonsOfYesNo}};

constexpr const wchar_t* Icons[] = {  // in the order of Boxes::Icon
    L"none", L"stop", L"question", L"exclamation", L"information"};

}  // namespace

Boxes::Answer MessageBoxes::Show(const std::wstring& text, const std::wstring& title, Icon icon,
                                 Buttons buttons) {
  const ButtonRow& row = Rows[static_cast<std::size_t>(buttons)];
  if (m_faults.Hit()) return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
  m_effects.Add(Effect("MessageBox")
                    .With("title", title)
                    .With("text", text)
                    .With("icon", std::wstring(Icons[static_cast<std::size_t>(icon)]))
                    .With("buttons", std::wstring(row.name)));
  if (const std::wstring* next = m_answers.Peek()) {
    const auto pressed = std::ranges::find(row.buttons, *next, &Button::name);
    if (pressed != row.buttons.end()) {
      m_answers.Take();
      return pressed->answer;
    }
  }
  return row.buttons.front().answer;
}

}  // namespace orvane::memory
