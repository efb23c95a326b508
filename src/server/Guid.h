#pragma once

#include <guiddef.h>

namespace orvane::server {

/// The class ContextMenuHandler, ProgID Orvane.ContextMenuHandler.
inline constexpr GUID ClsidContextMenuHandler = {
    0x493e3910, 0xbc83, 0x443b, {0x90, 0x17, 0xf5, 0xb5, 0x3d, 0xb5, 0xf5, 0xc4}};

}  // namespace orvane::server
