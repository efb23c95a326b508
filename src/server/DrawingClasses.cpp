#include "server/DrawingClasses.h"

#include <ocidl.h>
#include <olectl.h>

#include <atomic>
#include <string>

#include "graphics/clsPaintEffects.h"
#include "graphics/clsQuickGDI.h"
#include "server/Automation.h"
#include "server/AutomationInterfaces.h"
#include "server/Guarded.h"
#include "server/Guid.h"
#include "server/Module.h"
#include "win32/Gdi.h"

namespace orvane::server {
namespace {

/// Life and identity of an automation object with one interface.
template <class Interface, const IID& iid>
class DrawingObject : public Automation<Interface, iid> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (wanted != IID_IUnknown && wanted != IID_IDispatch && wanted != iid) return E_NOINTERFACE;
    AddRef();
    *object = static_cast<Interface*>(this);
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++m_references; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --m_references;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~DrawingObject() = default;

  win32::Gdi m_gdi;

 private:
  ModuleLock m_lock;
  std::atomic<ULONG> m_references = 1;
};

class QuickGdi final : public DrawingObject<IQuickGdi, IidQuickGdi> {
 public:
  HRESULT STDMETHODCALLTYPE get_TargethDC(LONG* hDC) noexcept override {
    if (!hDC) return E_POINTER;
    *hDC = ToNumber(m_quick.TargethDC());
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE put_TargethDC(LONG hDC) noexcept override {
    m_quick.TargethDC(ToHandle<DeviceContext>(hDC));
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE DrawRect(LONG X1, LONG Y1, LONG X2, LONG Y2) noexcept override {
    return Guarded(E_FAIL, [&] {
      m_quick.DrawRect(X1, Y1, X2, Y2);
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE GetPen(LONG nWidth, LONG Clr, LONG* hPen) noexcept override {
    if (!hPen) return E_POINTER;
    *hPen = 0;
    return Guarded(E_FAIL, [&] {
      *hPen = ToNumber(m_quick.GetPen(nWidth, static_cast<Colour>(Clr)));
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE hPrint(LONG x, LONG y, BSTR szText, LONG colour, LONG right,
                                   LONG bottom, LONG* height) noexcept override {
    if (!height) return E_POINTER;
    *height = 0;
    return Guarded(E_FAIL, [&] {
      const std::wstring text(szText ? szText : L"", SysStringLen(szText));
      *height = m_quick.hPrint(x, y, text, static_cast<Colour>(colour), right, bottom);
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE ThreedBox(LONG X1, LONG Y1, LONG X2, LONG Y2,
                                      VARIANT_BOOL Sunken) noexcept override {
    return Guarded(E_FAIL, [&] {
      m_quick.ThreedBox(X1, Y1, X2, Y2, Sunken != VARIANT_FALSE);
      return S_OK;
    });
  }

 private:
  clsQuickGDI m_quick{m_gdi};
};

/// The picture behind an automation object; of no type when it is none.
StdPicture PictureOf(IDispatch* object) {
  IPicture* picture = nullptr;
  if (!object || FAILED(object->QueryInterface(IID_PPV_ARGS(&picture)))) return {};
  SHORT type = 0;
  OLE_HANDLE handle = 0;
  const bool known = SUCCEEDED(picture->get_Type(&type)) && SUCCEEDED(picture->get_Handle(&handle));
  picture->Release();
  if (!known) return {};
  return {type, static_cast<BitmapHandle>(handle)};
}

class PaintEffects final : public DrawingObject<IPaintEffects, IidPaintEffects> {
 public:
  HRESULT STDMETHODCALLTYPE PaintTransparentDC(LONG hdcDest, LONG xDest, LONG yDest, LONG Width,
                                               LONG Height, LONG hdcSrc, LONG xSrc, LONG ySrc,
                                               LONG clrMask, LONG hPal) noexcept override {
    return Guarded(E_FAIL, [&] {
      m_effects.PaintTransparentDC(ToHandle<DeviceContext>(hdcDest), xDest, yDest, Width, Height,
                                   ToHandle<DeviceContext>(hdcSrc), xSrc, ySrc,
                                   static_cast<Colour>(clrMask), ToHandle<PaletteHandle>(hPal));
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE PaintTransparentStdPic(LONG hdcDest, LONG xDest, LONG yDest, LONG Width,
                                                   LONG Height, IDispatch* picSource, LONG xSrc,
                                                   LONG ySrc, LONG clrMask,
                                                   LONG hPal) noexcept override {
    return Guarded(E_FAIL, [&] {
      m_effects.PaintTransparentStdPic(ToHandle<DeviceContext>(hdcDest), xDest, yDest, Width,
                                       Height, PictureOf(picSource), xSrc, ySrc,
                                       static_cast<Colour>(clrMask), ToHandle<PaletteHandle>(hPal));
      return S_OK;
    });
  }

 private:
  clsPaintEffects m_effects{m_gdi};
};

}  // namespace

IUnknown* CreateQuickGdi(ClassFactory::For) {
  return new QuickGdi;
}

IUnknown* CreatePaintEffects(ClassFactory::For) {
  return new PaintEffects;
}

}  // namespace orvane::server
