#pragma once

#include <string>

#include "menudoc/MenuDocument.h"

namespace orvane::tool {

/// The index of the action or selection task that is called so: by its place ("/items/3"), its
/// caption or the captions on the way to it ("Popup/Caption"), without regard to case and "&". No
/// name is that of the only one. std::runtime_error that names those there are when none or several
/// are meant.
std::size_t FindTask(const MenuDocument& menu, const std::string& name);

}  // namespace orvane::tool
