#pragma once

#include <windows.h>

#include <unknwn.h>

namespace orvane::server {

// The two drawing classes as automation objects; each call makes one with a reference count of 1.

IUnknown* CreateQuickGdi();
IUnknown* CreatePaintEffects();

}  // namespace orvane::server
