#include "server/Registration.h"

#include <combaseapi.h>
#include <olectl.h>

#include <string>
#include <vector>

#include "server/Guid.h"
#include "server/Module.h"

namespace orvane::server {
namespace {

/// A class of the DLL as the registry names it.
struct Class {
  const GUID& clsid;
  const wchar_t* progId;
  const wchar_t* description;
};

const Class Classes[] = {
    {ClsidContextMenuHandler, L"Orvane.ContextMenuHandler", L"Orvane Context Menu"},
    {ClsidQuickGdi, L"Orvane.clsQuickGDI", L"Orvane Quick GDI"},
    {ClsidPaintEffects, L"Orvane.clsPaintEffects", L"Orvane Paint Effects"},
};

/// An interface of the type library.
struct Interface {
  const GUID& iid;
  const wchar_t* name;
};

const Interface Interfaces[] = {
    {IidQuickGdi, L"_clsQuickGDI"},
    {IidPaintEffects, L"_clsPaintEffects"},
    {IidContextMenuHandler, L"_ContextMenuHandler"},
};

// The system's marshaler of interfaces that a type library describes.
constexpr wchar_t AutomationProxy[] = L"{00020424-0000-0000-C000-000000000046}";

struct Value {
  std::wstring key;  // below the classes key
  std::wstring name;
  std::wstring text;
};

std::wstring GuidText(const GUID& guid) {
  wchar_t text[40];
  return std::wstring(text, static_cast<std::size_t>(StringFromGUID2(guid, text, 40)) - 1);
}

std::wstring ClassKey(const Class& entry) {
  return L"CLSID\\" + GuidText(entry.clsid);
}

std::wstring InterfaceKey(const Interface& entry) {
  return L"Interface\\" + GuidText(entry.iid);
}

std::wstring LibraryKey() {
  return L"TypeLib\\" + GuidText(LibidOrvane);
}

void AddClass(const Class& entry, std::vector<Value>& values) {
  const std::wstring key = ClassKey(entry);
  const std::wstring progId = entry.progId;
  values.insert(values.end(), {{key, L"", entry.description},
                               {key + L"\\InprocServer32", L"", Module::Path()},
                               {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                               {key + L"\\ProgID", L"", progId},
                               {key + L"\\TypeLib", L"", GuidText(LibidOrvane)},
                               {progId, L"", entry.description},
                               {progId + L"\\CLSID", L"", GuidText(entry.clsid)}});
}

// What RegisterTypeLib would write, so that the per-user registration is as exact as the other.
void AddLibrary(std::vector<Value>& values) {
  const std::wstring version = LibraryKey() + L"\\1.0";
  values.insert(values.end(), {{version, L"", L"Orvane"},
                               {version + L"\\0\\win64", L"", Module::Path()},
                               {version + L"\\FLAGS", L"", L"0"}});
  for (const Interface& entry : Interfaces) {
    const std::wstring key = InterfaceKey(entry);
    values.insert(values.end(), {{key, L"", entry.name},
                                 {key + L"\\ProxyStubClsid32", L"", AutomationProxy},
                                 {key + L"\\TypeLib", L"", GuidText(LibidOrvane)},
                                 {key + L"\\TypeLib", L"Version", L"1.0"}});
  }
}

std::vector<Value> Values() {
  std::vector<Value> values;
  for (const Class& entry : Classes) AddClass(entry, values);
  AddLibrary(values);
  return values;
}

/// The topmost keys that are ours alone; everything below them goes with them.
std::vector<std::wstring> OwnKeys() {
  std::vector<std::wstring> keys = {LibraryKey()};
  for (const Class& entry : Classes)
    keys.insert(keys.end(), {ClassKey(entry), std::wstring(entry.progId)});
  for (const Interface& entry : Interfaces) keys.push_back(InterfaceKey(entry));
  return keys;
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

HRESULT ResultOf(LSTATUS status) {
  if (status == ERROR_SUCCESS) return S_OK;
  return status == ERROR_ACCESS_DENIED ? E_ACCESSDENIED : SELFREG_E_CLASS;
}

}  // namespace

HRESULT Register(Scope scope) {
  HRESULT result = S_OK;
  for (const Value& value : Values()) {
    if (SUCCEEDED(result)) result = ResultOf(Write(scope, value));
  }
  if (FAILED(result)) Unregister(scope);
  return result;
}

HRESULT Unregister(Scope scope) {
  HRESULT result = S_OK;
  for (const std::wstring& key : OwnKeys()) {
    const HRESULT removed = ResultOf(Remove(scope, key));
    if (SUCCEEDED(result)) result = removed;
  }
  return result;
}

}  // namespace orvane::server
