#include "server/Registration.h"

#include <combaseapi.h>
#include <olectl.h>

#include <string>
#include <vector>

#include "server/Guid.h"
#include "server/Module.h"

namespace orvane::server {
namespace {

constexpr wchar_t ProgId[] = L"Orvane.ContextMenuHandler";
constexpr wchar_t Description[] = L"Orvane Context Menu";

struct Value {
  std::wstring key;  // below the classes key
  std::wstring name;
  std::wstring text;
};

std::wstring GuidText(const GUID& guid) {
  wchar_t text[40];
  return std::wstring(text, static_cast<std::size_t>(StringFromGUID2(guid, text, 40)) - 1);
}

// The class's two keys; everything below them is its own.
std::wstring ClassKey() {
  return L"CLSID\\" + GuidText(ClsidContextMenuHandler);
}

std::vector<Value> Values() {
  const std::wstring classKey = ClassKey();
  return {
      {classKey, L"", Description},
      {classKey + L"\\InprocServer32", L"", Module::Path()},
      {classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {classKey + L"\\ProgID", L"", ProgId},
      {ProgId, L"", Description},
      {std::wstring(ProgId) + L"\\CLSID", L"", GuidText(ClsidContextMenuHandler)},
  };
}

HKEY Root(Scope scope) {
  return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring PathOf(const std::wstring& key) {
  return L"Software\\Classes\\" + key;
}

LSTATUS Write(Scope scope, const Value& value) {
  const DWORD bytes = static_cast<DWORD>((value.text.size() + 1) * sizeof(wchar_t));
  return RegSetKeyValueW(Root(scope), PathOf(value.key).c_str(), value.name.c_str(), REG_SZ,
                         value.text.c_str(), bytes);
}

LSTATUS Remove(Scope scope, const std::wstring& key) {
  const LSTATUS status = RegDeleteTreeW(Root(scope), PathOf(key).c_str());
  return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

}  // namespace

HRESULT Register(Scope scope) {
  for (const Value& value : Values()) {
    const LSTATUS status = Write(scope, value);
    if (status == ERROR_SUCCESS) continue;
    Unregister(scope);
    return status == ERROR_ACCESS_DENIED ? E_ACCESSDENIED : SELFREG_E_CLASS;
  }
  return S_OK;
}

HRESULT Unregister(Scope scope) {
  const LSTATUS classStatus = Remove(scope, ClassKey());
  const LSTATUS progIdStatus = Remove(scope, ProgId);
  const LSTATUS status = classStatus != ERROR_SUCCESS ? classStatus : progIdStatus;
  if (status == ERROR_SUCCESS) return S_OK;
  return status == ERROR_ACCESS_DENIED ? E_ACCESSDENIED : SELFREG_E_CLASS;
}

}  // namespace orvane::server
