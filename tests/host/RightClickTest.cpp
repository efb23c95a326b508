#include <gtest/gtest.h>

#include <set>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

/// A data object whose files cannot be had, or only in the way that it insists on. Each medium that
/// it gives holds a reference to it.
class SpoiltDataObject final : public IDataObject {
 public:
  explicit SpoiltDataObject(HRESULT answer) : m_answer(answer) {}
  explicit SpoiltDataObject(ComPtr<IDataObject> whole) : m_answer(DV_E_LINDEX), m_whole(whole) {}
  ~SpoiltDataObject() { GlobalFree(m_discarded); }

  ULONG references = 1;
  int given = 0;

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
    if (m_whole && format->lindex == -1) return m_whole->GetData(format, medium);
    if (FAILED(m_answer)) return m_answer;
    ++given;
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = m_discarded;
    medium->pUnkForRelease = this;
    AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC*) override { return m_answer; }
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

 private:
  HRESULT m_answer;
  ComPtr<IDataObject> m_whole;
  HGLOBAL m_discarded = GlobalAlloc(GMEM_MOVEABLE, 0);  // GlobalLock answers null
};

class RightClicks : public testing::Test {
 protected:
  RightClicks() {
    scene.PlainText();
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    WriteDefinition(scene.Path(L"Menu.cfg"),
                    {{0, Item::TypeRoot, 0, {L"Orvane"}},
                     {1, Item::TypeFile, 0, {L"C:\\a.txt", L"&Editor"}},
                     {1, Item::TypePopupMenu, 0, {L"&Tools"}},
                     {3, Item::TypeFolder, 0, {scene.Path(L"Reports"), L"&Reports"}},
                     {3, Item::TypeSeparator, 0, {}},
                     {3, Item::TypeCustomAction, 0, {L"Hello~", L"Greeting"}},
                     {1, Item::TypeCopyToX, 0, {scene.Path(L"Reports"), L"Copy there", L"0"}}});
  }

  Apartment apartment;
  Scene scene;
};

TEST_F(RightClicks, OneFile) {
  const auto directory = std::filesystem::current_path();
  RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
  EXPECT_EQ(click.initialized, S_OK);
  click.Query();
  EXPECT_EQ(click.Text(),
            L"--------\nOrvane >\n"
            L"  &Editor\n"
            L"  &Tools >\n    &Reports\n    --------\n    Greeting\n"
            L"  Copy there\n  --------\n  &Designer...\n"
            L"--------\n&Add To Quick Access\n"
            L"--------\nOpen in New Window\nCopy to Clipboard\nCopy to Run Dialog...\n"
            L"Copy to...\nMove to...\nCommand Prompt Here\nTask Manager\n"
            L"--------\n--------\n");
  EXPECT_EQ(std::filesystem::current_path(), directory) << "the host's own";
}

void CollectIds(HMENU menu, std::multiset<UINT>& ids) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    if (const HMENU submenu = GetSubMenu(menu, i)) CollectIds(submenu, ids);
    const UINT id = GetMenuItemID(menu, i);
    if (id != 0 && id != static_cast<UINT>(-1)) ids.insert(id);
  }
}

TEST_F(RightClicks, IdentifiersAreUniqueAndWithinTheCountOrTheRange) {
  for (const UINT last : {32767u, 2000u + 40, 2000u + 9, 2000u + 5, 2000u + 2, 2000u + 1}) {
    RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
    const HRESULT count = click.Query(2000, last);
    std::multiset<UINT> ids;
    CollectIds(click.menu, ids);
    EXPECT_EQ(ids.size(), std::set<UINT>(ids.begin(), ids.end()).size());
    ASSERT_FALSE(ids.empty());
    EXPECT_GE(*ids.begin(), 2000u);
    EXPECT_LT(*ids.rbegin(), 2000u + static_cast<UINT>(count));
    EXPECT_LE(*ids.rbegin(), last);
  }
}

TEST_F(RightClicks, TwoHandlersAddOneRootAndOneBuildsAgainAndAgain) {
  RightClick click(scene.Folder(), nullptr);
  const RightClick second(scene.Folder(), nullptr);
  const HRESULT count = click.Query();
  const std::wstring menu = click.Text();
  const UINT next = static_cast<UINT>(1 + count);
  EXPECT_EQ(second.handler->QueryContextMenu(click.menu, 0, next, 32767, 0), 0);
  EXPECT_EQ(click.Text(), menu);
  for (int i = 0; i < 10; ++i) {
    click.NewMenu();
    EXPECT_EQ(click.Query(), count);
    EXPECT_EQ(click.Text(), menu);
  }
}

TEST_F(RightClicks, RefusedSelectionIsReportedAndItsMediumReleased) {
  SpoiltDataObject without(DV_E_FORMATETC);
  EXPECT_EQ(RightClick(scene.Folder(), &without).initialized, DV_E_FORMATETC);
  SpoiltDataObject unlockable(S_OK);
  EXPECT_TRUE(FAILED(RightClick(scene.Folder(), &unlockable).initialized));
  EXPECT_EQ(unlockable.given, 1);
  EXPECT_EQ(unlockable.references, 1u);
  SpoiltDataObject strict(Select(scene.Folder(), {L"a.txt"}));
  RightClick click(scene.Folder(), &strict);
  EXPECT_EQ(click.initialized, S_OK);
  click.Query();
  EXPECT_NE(click.Text().find(L"Copy to Run Dialog"), std::wstring::npos);
}

TEST_F(RightClicks, NothingHandedOverIsNoHarm) {
  RightClick click(L"", nullptr);
  EXPECT_EQ(click.initialized, S_OK);
  EXPECT_TRUE(FAILED(click.handler->InvokeCommand(nullptr)));
  EXPECT_TRUE(FAILED(click.handler->QueryContextMenu(nullptr, 0, 1, 32767, 0)));
  EXPECT_EQ(click.handler->HandleMenuMsg2(WM_DRAWITEM, 0, 0, nullptr), S_OK);
  EXPECT_EQ(click.handler->HandleMenuMsg2(WM_MEASUREITEM, 0, 0, nullptr), S_OK);
  EXPECT_EQ(click.handler->HandleMenuMsg(WM_INITMENUPOPUP, 0, 0), S_OK);
}

// What GetCommandString leaves in a buffer of 80 bytes, of which it is told that it may use some.
std::string Answer(IContextMenu3* handler, UINT_PTR offset, UINT what, UINT size,
                   HRESULT result = S_OK) {
  std::string bytes(80, 'x');
  EXPECT_EQ(handler->GetCommandString(offset, what, nullptr, bytes.data(), size), result);
  return bytes;
}

// The same buffer with the text's beginning in it, and the rest untouched.
std::string Filled(std::string text, bool wide, UINT size) {
  std::string bytes;
  if (size > 0) {
    text.resize(std::min<std::size_t>(text.size(), size - 1));
    for (const char character : text + '\0') bytes.append(1, character).append(wide, '\0');
  }
  bytes.resize(80, 'x');
  return bytes;
}

TEST_F(RightClicks, HelpTextsAndVerbsStayWithinTheirBuffer) {
  RightClick click(scene.Folder(), nullptr);
  EXPECT_EQ(Answer(click.handler.Get(), 0, GCS_HELPTEXTA, 80), std::string(80, 'x')) << "no menu";
  click.Query(100);
  const struct {
    UINT what;
    const char* text;
    bool wide;
    HRESULT ofNone = S_OK;
  } rows[] = {{GCS_VERBA, "Item0", false},
              {GCS_VERBW, "", true},
              {GCS_HELPTEXTA, "Orvane File - C:\\a.txt", false},
              {GCS_HELPTEXTW, "Orvane File - C:\\a.txt", true},
              {GCS_VALIDATEA, "", false, S_FALSE},
              {GCS_VALIDATEW, "", true, S_FALSE}};
  for (const auto& [what, text, wide, ofNone] : rows) {
    SCOPED_TRACE(what);
    for (const UINT size : {0u, 1u, 2u, 7u, 40u}) {
      EXPECT_EQ(Answer(click.handler.Get(), 0, what, size), Filled(text, wide, size)) << size;
    }
    for (const UINT_PTR offset : {UINT_PTR{30000}, reinterpret_cast<UINT_PTR>("Item0")})
      EXPECT_EQ(Answer(click.handler.Get(), offset, what, 80, ofNone), std::string(80, 'x'));
    EXPECT_EQ(click.handler->GetCommandString(0, what, nullptr, nullptr, 80), S_OK);
  }
}

}  // namespace
}  // namespace orvane::host
