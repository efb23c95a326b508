#pragma once

#include "server/ClassFactory.h"

namespace orvane::server {

// The two drawing classes as automation objects; each call makes one with a reference count of 1.

IUnknown* CreateQuickGdi(ClassFactory::For);
IUnknown* CreatePaintEffects(ClassFactory::For);

}  // namespace orvane::server
