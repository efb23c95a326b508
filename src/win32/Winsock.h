#pragma once

// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
// clang-format on

namespace orvane::win32 {

/// Windows' sockets for this process, loaded with the object: only a log that is sent to a listener
/// needs them, and a program that shows a menu often has not loaded them.
class Winsock {
 public:
  Winsock();
  ~Winsock();
  Winsock(const Winsock&) = delete;
  Winsock& operator=(const Winsock&) = delete;

  /// Otherwise nothing here may be called.
  bool Started() const { return m_started; }

  // Windows' functions of these names, as they are documented there.
  decltype(&::WSAGetLastError) GetLastError = nullptr;
  decltype(&::WSASocketW) Socket = nullptr;
  decltype(&::GetAddrInfoW) GetAddrInfo = nullptr;
  decltype(&::FreeAddrInfoW) FreeAddrInfo = nullptr;
  decltype(&::ioctlsocket) IoControl = nullptr;
  decltype(&::connect) Connect = nullptr;
  decltype(&::select) Select = nullptr;
  decltype(&::send) Send = nullptr;
  decltype(&::closesocket) Close = nullptr;

 private:
  template <class Function>
  bool Find(const char* name, Function& function) const;
  bool FindAll();

  HMODULE m_library;
  decltype(&::WSAStartup) m_startup = nullptr;
  decltype(&::WSACleanup) m_cleanup = nullptr;
  bool m_started = false;
};

}  // namespace orvane::win32
