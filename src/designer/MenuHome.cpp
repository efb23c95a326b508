#include "designer/MenuHome.h"

#include <memory>

#include "menudata/RegistryAccess.h"
#include "menudata/ShellPaths.h"
#include "support/FullPath.h"

namespace orvane::designer {
namespace {

constexpr const wchar_t* Module = L"\\orvane.dll";
constexpr const wchar_t* ModuleKey =
    L"CLSID\\{493E3910-BC83-443B-9017-F5B53DB5F5C4}\\InprocServer32";

/// Wherever a program may have it: for this user alone, or for all.
std::wstring RegisteredModule(Registry& registry) {
  const struct {
    Hive hive;
    const wchar_t* above;
  } places[] = {{Hive::CurrentUser, L"Software\\Classes\\"}, {Hive::ClassesRoot, L""}};
  std::wstring path;
  for (const auto& [hive, above] : places) {
    std::unique_ptr<RegistryKey> key;
    if (registry.OpenToRead(hive, std::wstring(above) + ModuleKey, key) == 0 &&
        ReadValue(*key, {}, path) == 0)
      break;
  }
  return path;
}

}  // namespace

std::wstring MenuHome(FileReader& files, Registry& registry, const std::wstring& ownFolder) {
  if (FileExists(files, ownFolder + Module)) return ownFolder;
  const std::wstring path = RegisteredModule(registry);
  const bool isThere = IsFullPath(path) && FileExists(files, path);
  return isThere ? path.substr(0, path.rfind(L'\\')) : ownFolder;
}

}  // namespace orvane::designer
