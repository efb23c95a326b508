#include <gtest/gtest.h>

#include "platform/memory/DataObject.h"
#ifdef _WIN32
#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include <cstring>

#include "platform/win32/DataObject.h"
#endif

namespace orvane {
namespace {

#ifdef _WIN32
/// A data object with one block of any content under CF_HDROP.
class TestObject : public IDataObject {
 public:
  std::vector<std::byte> block;
  HRESULT result = S_OK;
  bool discarded = false;  // the medium's memory cannot be locked
  FORMATETC asked{};
  int references = 1;
  int media = 0;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
    asked = *format;
    if (FAILED(result)) return result;
    *medium = {};
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = GlobalAlloc(GMEM_MOVEABLE, discarded ? 0 : block.size());
    if (!discarded) {
      std::memcpy(GlobalLock(medium->hGlobal), block.data(), block.size());
      GlobalUnlock(medium->hGlobal);
    }
    medium->pUnkForRelease = this;  // told when the medium is released
    ++references;
    ++media;
    return result;
  }
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC*) override { return E_NOTIMPL; }
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
};

std::vector<std::byte> BlockOf(std::wstring_view names) {
  DROPFILES head{};
  head.pFiles = sizeof head;
  head.fWide = TRUE;
  std::vector<std::byte> block(sizeof head + names.size() * sizeof(wchar_t));
  std::memcpy(block.data(), &head, sizeof head);
  std::memcpy(block.data() + sizeof head, names.data(), block.size() - sizeof head);
  return block;
}
#endif

struct OnMemory {
  memory::DataObject Make(std::initializer_list<std::wstring_view> names) { return names; }
};

#ifdef _WIN32
struct OnWindows {
  TestObject object;

  win32::DataObject Make(std::initializer_list<std::wstring_view> names) {
    FileNames list;
    for (std::wstring_view name : names) list.Add(name);
    object.block = BlockOf(std::wstring(list.All()) + L'\0');
    return win32::DataObject(&object);
  }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class DataObjectContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
};
TYPED_TEST_SUITE(DataObjectContract, BackEnds, );

TYPED_TEST(DataObjectContract, GivesTheNamesInOrderAsOftenAsAsked) {
  auto object = this->m_backEnd.Make({L"C:\\a b.txt", L"C:\\\u00e4\u05d0", L"C:\\a b.txt"});
  for (int i = 0; i < 2; ++i) {
    FileNames names;
    ASSERT_EQ(object.Files(names), 0);
    EXPECT_EQ(names.Count(), 3u);
    auto rest = names.All();
    EXPECT_EQ(FileNames::Take(rest), L"C:\\a b.txt");
    EXPECT_EQ(FileNames::Take(rest), L"C:\\\u00e4\u05d0");
    EXPECT_EQ(FileNames::Take(rest), L"C:\\a b.txt");
    EXPECT_TRUE(rest.empty());
  }
}

TYPED_TEST(DataObjectContract, MayHoldNothing) {
  auto object = this->m_backEnd.Make({});
  FileNames names;
  names.Add(L"before");
  EXPECT_EQ(object.Files(names), 0);
  EXPECT_EQ(names.Count(), 0u);
}

#ifdef _WIN32
TEST(Win32DataObject, ReleasesTheMediumOnEveryPath) {
  TestObject source;
  FileNames names;
  names.Add(L"before");
  {
    win32::DataObject object(&source);
    source.result = DV_E_FORMATETC;
    EXPECT_EQ(object.Files(names), DV_E_FORMATETC);
    EXPECT_EQ(source.asked.cfFormat, CF_HDROP);
    EXPECT_EQ(source.asked.dwAspect, static_cast<DWORD>(DVASPECT_CONTENT));
    EXPECT_EQ(source.asked.lindex, 0);
    EXPECT_EQ(source.asked.tymed, static_cast<DWORD>(TYMED_HGLOBAL));

    source.result = S_OK;
    source.discarded = true;
    EXPECT_LT(object.Files(names), 0) << "cannot be locked";
    source.discarded = false;
    source.block = BlockOf(L"C:\\no end");
    EXPECT_LT(object.Files(names), 0);
    source.block.resize(10);
    EXPECT_LT(object.Files(names), 0);
    EXPECT_EQ(names.Count(), 1u) << "untouched";

    source.block = BlockOf(std::wstring_view(L"C:\\a\0", 5));
    EXPECT_EQ(object.Files(names), 0);
    EXPECT_EQ(source.media, 4);
    EXPECT_EQ(source.references, 2) << "this one's and the object's";
  }
  EXPECT_EQ(source.references, 1);
}

TEST(Win32DataObject, TakesALongSelection) {
  std::wstring text;
  for (int i = 0; i < 100'000; ++i) text += L"C:\\folder\\file " + std::to_wstring(i) + L'\0';
  TestObject source;
  source.block = BlockOf(text + L'\0');
  FileNames names;
  EXPECT_EQ(win32::DataObject(&source).Files(names), 0);
  EXPECT_EQ(names.Count(), 100'000u);
}
#endif

}  // namespace
}  // namespace orvane
