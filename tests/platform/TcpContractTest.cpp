#include "platform/TestListener.h"
// The listener's winsock2.h must come before windows.h.
#include <gtest/gtest.h>

#include <chrono>

#ifdef _WIN32
#include "win32/Tcp.h"
#else
#include "memory/Tcp.h"
#endif

namespace orvane {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

bool Send(TcpConnection& connection, std::string_view text) {
  return connection.Send({reinterpret_cast<const std::byte*>(text.data()), text.size()});
}

/// Real sockets on both sides: those of the memory desktop are Linux's.
class TcpContract : public testing::Test {
 protected:
#ifdef _WIN32
  win32::Tcp tcp;
#else
  memory::Faults m_faults;
  memory::Tcp tcp{m_faults};
#endif
};

TEST_F(TcpContract, ReachesAListenerByAddressAndByName) {
  using namespace std::literals;
  for (const std::wstring host : {L"127.0.0.1", L"localhost", L""}) {
    TestListener listener;
    auto connection = tcp.Connect(host, listener.Port());
    ASSERT_TRUE(connection) << host;
    listener.Accept();
    EXPECT_TRUE(Send(*connection, "hello \0 there"sv));
    EXPECT_EQ(listener.Read(), "hello \0 there"s);
    connection.reset();
    EXPECT_EQ(listener.Read(), "");
  }
}

TEST_F(TcpContract, GivesUpWhenNobodyAnswers) {
  TestListener listener;
  listener.StopListening();
  const auto start = Clock::now();
  EXPECT_FALSE(tcp.Connect(L"127.0.0.1", listener.Port()));
  EXPECT_FALSE(tcp.Connect(L"192.0.2.1", 12000)) << "an address that nobody has";
  EXPECT_FALSE(tcp.Connect(L"not an address", 12000));
  EXPECT_LT(Clock::now() - start, 5s);
}

TEST_F(TcpContract, GivesAListenerUpThatStopsReading) {
  TestListener listener;
  const auto connection = tcp.Connect(L"127.0.0.1", listener.Port());
  ASSERT_TRUE(connection);
  const std::string much(1 << 20, 'x');
  const auto start = Clock::now();
  for (int i = 0; i < 100 && Send(*connection, much); ++i) {
  }
  EXPECT_LT(Clock::now() - start, 3s);
  const auto later = Clock::now();
  for (int i = 0; i < 1000; ++i) EXPECT_FALSE(Send(*connection, "x"));
  EXPECT_LT(Clock::now() - later, 100ms);
}

TEST_F(TcpContract, SurvivesAListenerThatHangsUp) {
  TestListener listener;
  const auto connection = tcp.Connect(L"127.0.0.1", listener.Port());
  ASSERT_TRUE(connection);
  listener.Accept();
  listener.HangUp();
  bool open = true;
  for (int i = 0; i < 1000 && open; ++i) open = Send(*connection, std::string(10'000, 'x'));
  EXPECT_FALSE(open);
}

}  // namespace
}  // namespace orvane
