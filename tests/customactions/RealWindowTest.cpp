#ifdef _WIN32

#include <gtest/gtest.h>
#include <windows.h>

#include "customactions/clsCustomActions.h"
#include "customactions/clsProcess.h"
#include "platform/win32/Desktop.h"
#include "support/CodePage.h"

namespace orvane {
namespace {

WindowHandle Handle(HWND window) {
  return ToHandle<WindowHandle>(static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window)));
}

/// A frame with an edit control; the thread that makes it may read its messages or hang.
struct Frame {
  Frame() {
    frame = CreateWindowExW(0, L"#32770", L"Save As", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300,
                            200, nullptr, nullptr, nullptr, nullptr);
    edit = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 280, 150,
                           frame, nullptr, nullptr, nullptr);
    SetForegroundWindow(frame);
    SetFocus(edit);
  }
  ~Frame() { DestroyWindow(frame); }

  HWND frame;
  HWND edit;
};

/// A frame whose thread answers nothing.
class HungFrame {
 public:
  HungFrame() {
    m_thread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
    WaitForSingleObject(m_made, INFINITE);
  }
  ~HungFrame() {
    SetEvent(m_end);
    WaitForSingleObject(m_thread, INFINITE);
    for (HANDLE handle : {m_thread, m_made, m_end}) CloseHandle(handle);
  }

  HWND edit = nullptr;

 private:
  static DWORD WINAPI Run(void* parameter) {
    auto& self = *static_cast<HungFrame*>(parameter);
    const Frame frame;
    self.edit = frame.edit;
    SetEvent(self.m_made);
    WaitForSingleObject(self.m_end, INFINITE);
    return 0;
  }

  HANDLE m_made = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE m_end = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE m_thread = nullptr;
};

/// The real desktop, with an action for the frame in a file of its own.
class RealWindowTest : public testing::Test {
 protected:
  RealWindowTest() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    actions.Path = folder + (L"OrvaneActions" + std::to_wstring(GetCurrentProcessId()) + L".ini");
    actions.m_szId = L"save";
    actions.m_lType = clsCustomActions::TypeWindow;
    actions.m_szDescription = L"Save here";
    actions.m_szCaption = L"save";
    actions.m_lCaptionMatch = clsCustomActions::OptionMatchPartial;
    actions.m_szClass = L"Edit";
    actions.m_lClassMatch = clsCustomActions::OptionMatchExact;
    actions.m_lOptions = clsCustomActions::OptionEnabled;
  }
  ~RealWindowTest() override { DeleteFileW(actions.Path.c_str()); }

  /// The script of the file's one action.
  void GiveScript(const std::wstring& script) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    actions.m_szExe = program;
    actions.m_lExeMatch = clsCustomActions::OptionMatchExact;
    actions.m_szActions = script;
    actions.Save(L"");
    actions.m_szActions.clear();
  }

  static std::wstring TextOf(HWND edit) {
    wchar_t text[1000];
    const int length = GetWindowTextW(edit, text, 1000);
    return {text, text + length};
  }

  win32::Desktop desktop{GetModuleHandleW(nullptr)};
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsProcess process{desktop.processes, desktop.system};
  clsCustomActions actions{{desktop.files, desktop.profiles, desktop.windows, process,
                            desktop.keyboard, desktop.clock, desktop.locale, desktop.boxes,
                            codePage}};
};

TEST_F(RealWindowTest, PlaysTheActionOfItsWindow) {
  GiveScript(L"old{HOME}+{END}{DEL}[orv_item]{+}+(ab)c{LEFT}{x 3}[orv_pause 10][orv_date yyyy]");
  const Frame frame;
  const WindowHandle window = Handle(frame.edit);
  ASSERT_EQ(actions.MatchWindow(window, L""), window);
  ActivateWindowProcess(desktop.processes, window);
  actions.SendActions(L"C:\\\u00c4\u4e2d & ");

  const std::wstring year = std::to_wstring(desktop.clock.Now().year);
  EXPECT_EQ(TextOf(frame.edit), L"C:\\\u00c4\u4e2d & +ABxxx" + year + L"c");
  for (const int key : {VK_SHIFT, VK_CONTROL, VK_MENU}) EXPECT_GE(GetAsyncKeyState(key), 0);
}

TEST_F(RealWindowTest, WaitsForNoHungWindow) {
  GiveScript(L"+(abc)[orv_item]");
  const HungFrame hung;
  const ULONGLONG start = GetTickCount64();
  actions.MatchWindow(Handle(hung.edit), L"");
  EXPECT_LT(GetTickCount64() - start, 1000u);
  actions.m_szActions = L"+(abc)";
  actions.SendActions(L"");
  EXPECT_LT(GetTickCount64() - start, 10'000u);
  EXPECT_GE(GetAsyncKeyState(VK_SHIFT), 0) << "no key stays down";
}

}  // namespace
}  // namespace orvane

#endif
