// What other programs do with the handler, each in its own way.

#include <gtest/gtest.h>

#include <servprov.h>
#include <shellapi.h>

#include <algorithm>
#include <set>
#include <thread>

#include "common/TestBrowser.h"
#include "host/Com.h"
#include "host/Definition.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/Scene.h"
#include "host/SharedMenu.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;
using Through = SharedMenu::Through;

/// The user's menu, drawn by its owner as it is by default.
struct DrawnMenu : Scene {
  DrawnMenu() {
    Set(L"ShellShowIcons", 0);
    Set(L"ShellShowQuickAccessMRU", 0);
    Set(L"ShellShowFlags", 0);
    Set(L"ShellConfigFile", Path(L"Menu.cfg"));
    WriteDefinition(Path(L"Menu.cfg"),
                    {{0, Item::TypeRoot, 0, {L"Orvane"}},
                     {1, Item::TypePopupMenu, 0, {L"&Tools"}},
                     {2, Item::TypeFolder, 0, {Path(L"Reports"), L"&Reports"}},
                     {2, Item::TypeCustomAction, 0, {L"", L"&Rename"}},
                     {1, Item::TypeDynamicFolder, 0, {Folder(), L"Folder", L"*.txt", L"0"}},
                     {1, Item::TypeCustomAction, 0, {L"", L"&Nothing"}}});
  }
};

class ForeignHost : public testing::Test {
 protected:
  static constexpr UINT Tools = 1, Reports = 2, Nothing = 5;  // in a menu from 1 on

  Apartment apartment;
  DrawnMenu scene;
  RightClick click{scene.Folder(), nullptr};
  Neighbour neighbour;
};

TEST_F(ForeignHost, CommandsOfOthersReachThem) {
  SharedMenu shared;
  shared.Add(click.handler.Get());
  shared.Add(&neighbour);
  const struct {
    const char* verb;
    const wchar_t* wide;
    int taker;
  } rows[] = {{"edit", nullptr, 1},
              {"print", nullptr, -1},
              {"delete", nullptr, -1},
              {"runas", nullptr, -1},
              {"", nullptr, -1},
              {"Item", nullptr, -1},
              {"open", nullptr, -1},
              {"Item9999", nullptr, -1},
              {"Item-1", nullptr, -1},
              {"Item0x1", nullptr, -1},
              {"Item4294967296", nullptr, -1},
              {"Item0", nullptr, 0},
              {"item4", nullptr, 0},
              {"edit", L"print", -1},
              {"print", L"Item0", 0}};
  for (const auto& [verb, wide, taker] : rows) {
    const int answer = shared.Verb(verb, wide);
    // A wide verb is ours to know; the neighbour reads the narrow one.
    EXPECT_EQ(answer, wide && taker < 0 ? 1 : taker) << verb;
  }
  EXPECT_EQ(shared.Choose(Tools), 0);
  EXPECT_EQ(shared.Choose(Nothing), 0);
  EXPECT_EQ(shared.Choose(shared.firsts[1] - 1), -1) << "lent, but nobody's";
  neighbour.invoked = 0;
  EXPECT_EQ(shared.Choose(shared.firsts[1]), 1);
  EXPECT_EQ(neighbour.invoked, 1);
}

TEST_F(ForeignHost, RecordsOfEverySizeAndBeforeAnyMenu) {
  CMINVOKECOMMANDINFOEX record{};
  record.lpVerb = "Item0";
  const struct {
    DWORD size;
    DWORD mask;
    const wchar_t* wide;
    HRESULT result;
  } rows[] = {{0, 0, nullptr, S_OK},
              {sizeof(CMINVOKECOMMANDINFO), 0, nullptr, S_OK},
              {offsetof(CMINVOKECOMMANDINFOEX, ptInvoke), CMIC_MASK_UNICODE, L"none", E_FAIL},
              {sizeof record, CMIC_MASK_UNICODE, L"none", E_FAIL},
              {sizeof record, 0, L"none", S_OK},
              {sizeof record, CMIC_MASK_UNICODE, nullptr, S_OK},
              {sizeof record + 100, CMIC_MASK_UNICODE, L"none", E_FAIL},
              // Where there is no room for a wide verb the mask promises in vain.
              {0, CMIC_MASK_UNICODE, L"none", S_OK},
              {sizeof(CMINVOKECOMMANDINFO), CMIC_MASK_UNICODE, L"none", S_OK},
              {sizeof(CMINVOKECOMMANDINFO) - 1, 0, nullptr, E_INVALIDARG},
              {1, 0, nullptr, E_INVALIDARG}};
  const auto invoke = [&](DWORD size, DWORD mask, const wchar_t* wide) {
    record.cbSize = size;
    record.fMask = mask;
    record.lpVerbW = wide;
    return click.handler->InvokeCommand(reinterpret_cast<CMINVOKECOMMANDINFO*>(&record));
  };
  for (const auto& row : rows)
    EXPECT_TRUE(FAILED(invoke(row.size, row.mask, row.wide))) << "before any menu " << row.size;
  click.Query();
  for (const auto& row : rows)
    EXPECT_EQ(invoke(row.size, row.mask, row.wide), row.result) << row.size << " " << row.mask;
}

/// What an entry looks like once the messages for it have run.
struct Look {
  UINT width = 0;
  UINT height = 0;
  std::vector<COLORREF> pixels = {};
  bool operator==(const Look&) const = default;
};

Look DrawThrough(SharedMenu& shared, UINT id) {
  MEASUREITEMSTRUCT measure{};
  measure.CtlType = ODT_MENU;
  measure.itemID = id;
  shared.Send(id, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
  const HDC context = CreateCompatibleDC(nullptr);
  const HBITMAP surface = CreateBitmap(100, 20, 1, 32, nullptr);
  const HGDIOBJ old = SelectObject(context, surface);
  DRAWITEMSTRUCT draw{};
  draw.CtlType = ODT_MENU;
  draw.itemID = id;
  draw.hDC = context;
  draw.rcItem = {0, 0, 100, 20};
  draw.itemState = ODS_SELECTED;
  shared.Send(id, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
  Look look{measure.itemWidth, measure.itemHeight};
  for (int i = 0; i < 2000; ++i) look.pixels.push_back(GetPixel(context, i % 100, i / 100));
  SelectObject(context, old);
  DeleteObject(surface);
  DeleteDC(context);
  return look;
}

TEST_F(ForeignHost, EveryWayToPassMessagesFillsAndPaintsAlike) {
  std::vector<Look> looks;
  for (const Through through : {Through::HandleMenuMsg, Through::HandleMenuMsg2, Through::Both}) {
    const RightClick another(scene.Folder(), nullptr);
    SharedMenu shared(through);
    shared.Add(&neighbour);
    shared.Add(another.handler.Get());
    const HMENU folder = FindSubmenu(shared.menu, L"Folder");
    ASSERT_EQ(GetMenuItemCount(folder), 1);
    for (int i = 0; i < 2; ++i) {
      shared.Open(folder);
      EXPECT_EQ(GetMenuItemCount(folder), 5);  // four files and the folder, which no filter holds
    }
    looks.push_back(DrawThrough(shared, IdAt(folder, 0)));
    EXPECT_EQ(looks.back(), looks.front());
  }
  EXPECT_GT(looks[0].width, 25u);
  const std::set<COLORREF> colours(looks[0].pixels.begin(), looks[0].pixels.end());
  EXPECT_GT(colours.size(), 1u) << "nothing was painted";
  EXPECT_TRUE(neighbour.messages.empty());
}

TEST_F(ForeignHost, LettersReachOwnerDrawnEntries) {
  SharedMenu shared;
  shared.Add(click.handler.Get());
  const HMENU root = FindSubmenu(shared.menu, L"Orvane");
  const HMENU tools = FindSubmenu(shared.menu, L"&Tools");
  EXPECT_EQ(shared.Type(root, L'T'), MAKELRESULT(0, MNC_EXECUTE));
  EXPECT_EQ(shared.Type(root, L'f'), MAKELRESULT(1, MNC_EXECUTE));
  EXPECT_EQ(shared.Type(root, L'x'), MAKELRESULT(0, MNC_IGNORE));
  EXPECT_EQ(shared.Type(tools, L'r'), MAKELRESULT(0, MNC_SELECT));
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_STATE;
  info.fState = MFS_HILITE;
  SetMenuItemInfoW(tools, 0, TRUE, &info);
  EXPECT_EQ(shared.Type(tools, L'r'), MAKELRESULT(1, MNC_SELECT));
  EXPECT_EQ(shared.Send(Tools, WM_MENUCHAR, 'o', reinterpret_cast<LPARAM>(shared.menu)), 0);
}

TEST_F(ForeignHost, TextsInPoisonedBuffersAreClosed) {
  scene.Set(L"DebugEnableInMenu", 1);  // an entry without a record, at offset 0
  RightClick another(scene.Folder(), nullptr);
  const auto count = static_cast<UINT>(another.Query());
  for (UINT offset = 0; offset < count; offset += offset < 20 ? 1 : 97) {
    for (const UINT what : {GCS_VERBW, GCS_HELPTEXTW, GCS_VALIDATEW}) {
      for (const UINT size : {1u, 2u, 50u}) {
        std::wstring buffer(60, 0xDDDD);
        another.handler->GetCommandString(offset, what, nullptr,
                                          reinterpret_cast<char*>(buffer.data()), size);
        EXPECT_LT(buffer.find(L'\0'), size) << offset << " " << what;
        EXPECT_EQ(buffer[size], 0xDDDD) << offset << " " << what;
      }
    }
  }
  const auto validate = [&](UINT_PTR offset) {
    return another.handler->GetCommandString(offset, GCS_VALIDATEW, nullptr, nullptr, 0);
  };
  EXPECT_EQ(validate(0), S_OK);
  EXPECT_EQ(validate(1), S_OK);
  EXPECT_EQ(validate(count), S_FALSE);
}

TEST_F(ForeignHost, IdentifiersStayWithinTheCountHoweverFewAreLent) {
  for (UINT lent = 1; lent <= 40; ++lent) {
    SharedMenu shared;
    const RightClick another(scene.Folder(), nullptr);
    // The message box of a range that is too short has somebody to answer it.
    if (lent > 1) shared.Add(another.handler.Get(), lent);
    const UINT next = shared.firsts.back();
    shared.Add(&neighbour);
    if (const HMENU folder = FindSubmenu(shared.menu, L"Folder")) shared.Open(folder);
    std::set<UINT> seen;
    for (const UINT id : IdsOf(shared.menu)) {
      EXPECT_TRUE(seen.insert(id).second) << id << " of " << lent;
      EXPECT_LE(id, next) << lent;
    }
    EXPECT_LE(next, lent + 2) << lent;
    EXPECT_EQ(shared.Choose(next), static_cast<int>(shared.firsts.size()) - 2) << lent;
  }
  EXPECT_TRUE(neighbour.messages.empty());
}

TEST_F(ForeignHost, IsOneObjectByEveryIdentifier) {
  const IID all[] = {IID_IUnknown,      IID_IShellExtInit, IID_IContextMenu,   IID_IContextMenu2,
                     IID_IContextMenu3, IID_IDispatch,     IID_IObjectWithSite};
  for (const IID& from : all) {
    ComPtr<IUnknown> face;
    ASSERT_EQ(click.handler->QueryInterface(from, reinterpret_cast<void**>(face.GetAddressOf())),
              S_OK);
    for (const IID& to : all) {
      ComPtr<IUnknown> other, one, two;
      EXPECT_EQ(face->QueryInterface(to, reinterpret_cast<void**>(other.GetAddressOf())), S_OK);
      face->QueryInterface(IID_PPV_ARGS(one.GetAddressOf()));
      other->QueryInterface(IID_PPV_ARGS(two.GetAddressOf()));
      EXPECT_EQ(one.Get(), two.Get());
    }
    void* none = this;
    EXPECT_EQ(face->QueryInterface(IID_IShellView, &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);
  }
  ComPtr<IContextMenu> first, second;
  click.handler->QueryInterface(IID_PPV_ARGS(first.GetAddressOf()));
  click.handler->QueryInterface(IID_PPV_ARGS(second.GetAddressOf()));
  click.handler.Reset();
  first.Reset();
  EXPECT_GT(second->QueryContextMenu(click.menu, 0, 1, 100, 0), 0);
}

/// A site with a browser, or with none.
class Site final : public IServiceProvider {
 public:
  explicit Site(IShellBrowser* browser) : m_browser(browser) {}
  ULONG references = 1;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || (m_browser && iid == IID_IServiceProvider);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** object) override {
    *object = nullptr;
    return service == SID_STopLevelBrowser ? m_browser->QueryInterface(iid, object) : E_FAIL;
  }

 private:
  IShellBrowser* m_browser;
};

/// A window that answers the question for its shell browser and counts what follows.
struct BrowserWindow {
  LRESULT answer = 0;
  int moved = 0;
  HWND window =
      CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);

  explicit BrowserWindow(LRESULT answer) : answer(answer) {
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
  }
  ~BrowserWindow() { DestroyWindow(window); }
  BrowserWindow(const BrowserWindow&) = delete;
  BrowserWindow& operator=(const BrowserWindow&) = delete;

  static LRESULT CALLBACK Procedure(HWND self, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* data = reinterpret_cast<BrowserWindow*>(GetWindowLongPtrW(self, GWLP_USERDATA));
    if (message == WM_USER + 7) return data->answer;
    if (message == WM_USER + 10) ++data->moved;
    return DefWindowProcW(self, message, wParam, lParam);
  }
};

LRESULT AddressOf(test::TestBrowser& browser) {
  return reinterpret_cast<LRESULT>(static_cast<IShellBrowser*>(&browser));
}

TEST_F(ForeignHost, FoldersAreShownInTheWindowThatItsSiteOrItselfNames) {
  const struct {
    const char* name;
    bool site, siteBrowser, windowBrowser;
  } rows[] = {{"a site's browser before the window's", true, true, true},
              {"a site alone", true, true, false},
              {"a script host's site", true, false, true},
              {"no site", false, false, true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    test::TestBrowser ofSite, ofWindow;
    Site site(row.siteBrowser ? &ofSite : nullptr);
    BrowserWindow window(row.windowBrowser ? AddressOf(ofWindow) : 1);
    RightClick another(scene.Folder(), nullptr);
    ComPtr<IObjectWithSite> sited;
    another.handler->QueryInterface(IID_PPV_ARGS(sited.GetAddressOf()));
    ComPtr<IUnknown> found;
    EXPECT_EQ(sited->GetSite(IID_PPV_ARGS(found.GetAddressOf())), E_FAIL);
    if (row.site) {
      EXPECT_EQ(sited->SetSite(&site), S_OK);
      EXPECT_EQ(sited->GetSite(IID_PPV_ARGS(found.GetAddressOf())), S_OK);
    }
    another.Query();
    EXPECT_TRUE(another.Invoke(Reports, window.window));
    EXPECT_EQ(ofSite.browsed != nullptr, row.siteBrowser);
    EXPECT_EQ(ofWindow.browsed != nullptr, !row.siteBrowser);
    EXPECT_EQ(window.moved, row.siteBrowser ? 0 : 1);
    found.Reset();
    sited->SetSite(nullptr);
    EXPECT_EQ(site.references, 1u);
    EXPECT_EQ(ofSite.references, 1);
    EXPECT_EQ(ofWindow.references, 1);
  }
}

TEST_F(ForeignHost, HandlersReleasedByAnotherThreadLeaveNothingBehind) {
  click.handler.Reset();
  const Library library;
  const auto releaseElsewhere = [&](int times) {
    for (int i = 0; i < times; ++i) {
      RightClick another(scene.Folder(), nullptr);
      EXPECT_GT(another.Query(), 0);
      std::thread([&] { another.handler.Reset(); }).join();
      EXPECT_EQ(library.Call("DllCanUnloadNow"), S_OK);
    }
    EXPECT_GT(RightClick(scene.Folder(), nullptr).Query(), 0);  // ends what waits for this thread
    return LeakCount::Now();
  };
  const LeakCount before = releaseElsewhere(3);
  const LeakCount after = releaseElsewhere(50);
  EXPECT_EQ(after.heapBlocks, before.heapBlocks);
  EXPECT_EQ(after.userHandles, before.userHandles);
}

TEST_F(ForeignHost, HandlersOutliveTheirThread) {
  click.handler.Reset();
  for (int i = 0; i < 20; ++i) {
    IContextMenu3* left[2] = {};
    std::thread([&] {
      const Apartment own;
      for (IContextMenu3*& handler : left) {
        RightClick another(scene.Folder(), nullptr);
        another.Query();
        handler = another.handler.Detach();
      }
    }).join();
    std::thread other([&] { left[0]->Release(); });
    left[1]->Release();
    other.join();
  }
  EXPECT_GT(RightClick(scene.Folder(), nullptr).Query(), 0);
  EXPECT_EQ(Library().Call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace orvane::host
