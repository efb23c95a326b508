#pragma once

namespace orvane {

inline constexpr const wchar_t* ProductName = L"Orvane";

/// Title of every message box, and what the trace's greeting says.
inline constexpr const wchar_t* g_szAppTitle = L"Orvane - Orvane Shell Extension";

}  // namespace orvane
