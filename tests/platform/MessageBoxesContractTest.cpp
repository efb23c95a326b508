#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/MessageBoxes.h"
#endif

namespace orvane {
namespace {

using Answer = MessageBoxes::Answer;
using Buttons = MessageBoxes::Buttons;
using Icon = MessageBoxes::Icon;

struct OnMemory {
  memory::Desktop desktop;
  MessageBoxes& boxes = desktop.boxes;

  Answer Show(Buttons buttons, const wchar_t* pressed) {
    desktop.answers.Add(pressed);
    return boxes.Show(L"text", L"Orvane test box", Icon::Question, buttons);
  }
};

#ifdef _WIN32
struct OnWindows {
  win32::MessageBoxes boxes;
  HWND beside = CreateWindowExW(0, L"Static", L"Orvane beside a box", WS_POPUP | WS_VISIBLE, 0, 0,
                                9, 9, nullptr, nullptr, nullptr, nullptr);

  ~OnWindows() { DestroyWindow(beside); }

  Answer Show(Buttons buttons, const wchar_t* pressed) {
    const HANDLE presser =
        CreateThread(nullptr, 0, Press, const_cast<wchar_t*>(pressed), 0, nullptr);
    const Answer answer = boxes.Show(L"text", L"Orvane test box", Icon::Question, buttons);
    WaitForSingleObject(presser, INFINITE);
    CloseHandle(presser);
    return answer;
  }

 private:
  static DWORD WINAPI Press(void* parameter) {
    const std::wstring name = static_cast<const wchar_t*>(parameter);
    const WPARAM id = name == L"ok"    ? IDOK
                      : name == L"yes" ? IDYES
                      : name == L"no"  ? IDNO
                                       : IDCANCEL;
    for (int i = 0; i < 500; ++i, Sleep(20)) {
      const HWND box = FindWindowW(L"#32770", L"Orvane test box");
      if (!box || !IsWindowVisible(box)) continue;
      EXPECT_FALSE(IsWindowEnabled(FindWindowW(L"Static", L"Orvane beside a box")));
      if (PostMessageW(box, WM_COMMAND, id, 0)) return 0;
    }
    return 0;
  }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class MessageBoxesContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
};
TYPED_TEST_SUITE(MessageBoxesContract, BackEnds, );

TYPED_TEST(MessageBoxesContract, AnswersWithTheButtonThatWasPressed) {
  EXPECT_EQ(this->m_backEnd.Show(Buttons::Ok, L"ok"), Answer::Ok);
  EXPECT_EQ(this->m_backEnd.Show(Buttons::OkCancel, L"ok"), Answer::Ok);
  EXPECT_EQ(this->m_backEnd.Show(Buttons::OkCancel, L"cancel"), Answer::Cancel);
  EXPECT_EQ(this->m_backEnd.Show(Buttons::YesNo, L"yes"), Answer::Yes);
  EXPECT_EQ(this->m_backEnd.Show(Buttons::YesNo, L"no"), Answer::No);
}

TEST(MemoryMessageBoxes, RecordBoxesAndTakeOnlyTheirAnswers) {
  memory::Desktop desktop;
  desktop.answers.Add(L"C:\\folder");
  EXPECT_EQ(desktop.boxes.Show(L"File is corrupt!", L"Title", Icon::Stop), Answer::Ok);
  EXPECT_EQ(desktop.boxes.Show(L"?", L"Title", Icon::None, Buttons::YesNo), Answer::Yes);
  EXPECT_EQ(desktop.answers.Take(), L"C:\\folder");
  ASSERT_EQ(desktop.effects.All().size(), 2u);
  const auto& fields = desktop.effects.All()[0].fields;
  const std::vector<std::pair<std::string, std::wstring>> expected = {
      {"title", L"Title"}, {"text", L"File is corrupt!"}, {"icon", L"stop"}, {"buttons", L"ok"}};
  ASSERT_EQ(fields.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(fields[i].first, expected[i].first);
    EXPECT_EQ(std::get<std::wstring>(fields[i].second), expected[i].second);
  }

  desktop.faults.FailCall(1);
  EXPECT_EQ(desktop.boxes.Show(L"?", L"", Icon::None, Buttons::YesNo), Answer::No);
}

}  // namespace
}  // namespace orvane
