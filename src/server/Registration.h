#pragma once

#include <windows.h>

namespace orvane::server {

enum class Scope { Machine, CurrentUser };

/// Writes the keys of the DLL's classes and of their type library; on failure takes back what it
/// wrote. Associations with file types are the installer's business.
HRESULT Register(Scope scope);

/// Removes the keys that Register writes; keys that are not there are no failure.
HRESULT Unregister(Scope scope);

}  // namespace orvane::server
