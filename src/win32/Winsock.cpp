#include "win32/Winsock.h"

namespace orvane::win32 {

Winsock::Winsock()
    : m_library(LoadLibraryExW(L"ws2_32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {
  WSADATA data;
  m_started = m_library && FindAll() && m_startup(MAKEWORD(2, 2), &data) == 0;
}

Winsock::~Winsock() {
  if (m_started) m_cleanup();
  if (m_library) FreeLibrary(m_library);
}

template <class Function>
bool Winsock::Find(const char* name, Function& function) const {
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(m_library, name)));
  return function != nullptr;
}

bool Winsock::FindAll() {
  return Find("WSAStartup", m_startup) && Find("WSACleanup", m_cleanup) &&
         Find("WSAGetLastError", GetLastError) && Find("WSASocketW", Socket) &&
         Find("GetAddrInfoW", GetAddrInfo) && Find("FreeAddrInfoW", FreeAddrInfo) &&
         Find("ioctlsocket", IoControl) && Find("connect", Connect) && Find("select", Select) &&
         Find("send", Send) && Find("closesocket", Close);
}

}  // namespace orvane::win32
