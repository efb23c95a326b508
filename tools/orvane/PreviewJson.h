#pragma once

#include <nlohmann/json_fwd.hpp>

#include "PreviewSession.h"

namespace orvane::tool {

/// The menu's entries, with their help texts when asked for.
nlohmann::ordered_json MenuJson(const PreviewSession& session, MenuHandle menu, bool helpTexts);

/// What left the component, in order.
nlohmann::ordered_json EffectsJson(const memory::Effects& effects);

}  // namespace orvane::tool
