// A small automation server for the script test: a script has no drawing surface of its own.
// "OrvaneTest.Canvas" makes memory contexts and tells their pixels:
//   hdc = canvas.Open(width, height)     canvas.Pixel(hdc, x, y)     canvas.Set hdc, x, y, colour

#include <windows.h>

#include <oaidl.h>
#include <oleauto.h>

#include <string>

namespace {

constexpr GUID Clsid = {
    0x0d3cbb0e, 0x43b9, 0x4f52, {0x8d, 0x0c, 0x0e, 0x86, 0x5f, 0x6b, 0x21, 0x7d}};
constexpr wchar_t ClsidText[] = L"{0D3CBB0E-43B9-4F52-8D0C-0E865F6B217D}";
constexpr wchar_t ProgId[] = L"OrvaneTest.Canvas";

HINSTANCE g_module = nullptr;

HDC ToContext(LONG number) {
  return reinterpret_cast<HDC>(static_cast<LONG_PTR>(number));
}

/// A 32-bit surface, white. It lives as long as the script's process.
LONG Open(LONG width, LONG height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HDC context = CreateCompatibleDC(nullptr);
  SelectObject(context, CreateDIBSection(context, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  PatBlt(context, 0, 0, width, height, WHITENESS);
  return static_cast<LONG>(reinterpret_cast<LONG_PTR>(context));
}

class Canvas final : public IDispatch, public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch) *object = static_cast<IDispatch*>(this);
    if (iid == IID_IClassFactory) *object = static_cast<IClassFactory*>(this);
    return *object ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }  // one, for ever
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
    return QueryInterface(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) override {
    constexpr const wchar_t* Names[] = {L"open", L"pixel", L"set"};
    for (DISPID id = 0; id < 3; ++id) {
      if (lstrcmpiW(names[0], Names[id]) != 0) continue;
      ids[0] = id + 1;
      return S_OK;
    }
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                   VARIANT* answer, EXCEPINFO*, UINT*) override {
    LONG numbers[4] = {};
    for (UINT i = 0; i < parameters->cArgs && i < 4; ++i) {
      VARIANT number{};
      if (FAILED(
              VariantChangeType(&number, &parameters->rgvarg[parameters->cArgs - 1 - i], 0, VT_I4)))
        return DISP_E_TYPEMISMATCH;
      numbers[i] = number.lVal;
    }
    LONG result = 0;
    if (id == 1) result = Open(numbers[0], numbers[1]);
    if (id == 2)
      result = static_cast<LONG>(GetPixel(ToContext(numbers[0]), numbers[1], numbers[2]));
    if (id == 3)
      SetPixel(ToContext(numbers[0]), numbers[1], numbers[2], static_cast<COLORREF>(numbers[3]));
    if (answer) {
      answer->vt = VT_I4;
      answer->lVal = result;
    }
    return S_OK;
  }
};

Canvas g_canvas;

bool Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), name, REG_SZ,
                         text.c_str(),
                         static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD, void*) {
  g_module = module;
  return TRUE;
}

extern "C" __declspec(dllexport) HRESULT WINAPI
    DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
  return clsid == Clsid ? g_canvas.QueryInterface(iid, object) : CLASS_E_CLASSNOTAVAILABLE;
}

extern "C" __declspec(dllexport) HRESULT WINAPI DllRegisterServer() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(g_module, path, MAX_PATH);
  const std::wstring classKey = std::wstring(L"CLSID\\") + ClsidText;
  const bool written = Write(classKey + L"\\InprocServer32", nullptr, path) &&
                       Write(classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
                       Write(std::wstring(ProgId) + L"\\CLSID", nullptr, ClsidText);
  return written ? S_OK : E_FAIL;
}
