// Before everything else: winsock2.h must come before windows.h.
#include "platform/TestListener.h"
// Own line, so that it stays first.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>

#include "platform/memory/Tcp.h"
#ifdef _WIN32
#include "platform/win32/Tcp.h"
#endif

namespace orvane {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

#ifdef _WIN32
struct OnWindows {
  win32::Tcp tcp;
};
using BackEnds = testing::Types<OnWindows>;  // the memory desktop has no sockets there
#else
struct OnMemory {
  memory::Faults faults;
  memory::Tcp tcp{faults};
};
using BackEnds = testing::Types<OnMemory>;
#endif

bool Send(TcpConnection& connection, std::string_view text) {
  return connection.Send({reinterpret_cast<const std::byte*>(text.data()), text.size()});
}

template <class BackEnd>
class TcpContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Tcp& tcp = m_backEnd.tcp;
};
TYPED_TEST_SUITE(TcpContract, BackEnds, );

TYPED_TEST(TcpContract, ReachesAListenerByAddressAndByName) {
  using namespace std::literals;
  for (const std::wstring host : {L"127.0.0.1", L"localhost", L""}) {
    TestListener listener;
    auto connection = this->tcp.Connect(host, listener.Port());
    ASSERT_TRUE(connection) << host;
    listener.Accept();
    EXPECT_TRUE(Send(*connection, "hello \0 there"sv));
    EXPECT_EQ(listener.Read(), "hello \0 there"s);
    connection.reset();
    EXPECT_EQ(listener.Read(), "");
  }
}

TYPED_TEST(TcpContract, GivesUpWhenNobodyAnswers) {
  TestListener listener;
  listener.StopListening();
  const auto start = Clock::now();
  EXPECT_FALSE(this->tcp.Connect(L"127.0.0.1", listener.Port()));
  EXPECT_FALSE(this->tcp.Connect(L"192.0.2.1", 12000)) << "an address that nobody has";
  EXPECT_FALSE(this->tcp.Connect(L"not an address", 12000));
  EXPECT_LT(Clock::now() - start, 5s);
}

TYPED_TEST(TcpContract, GivesAListenerUpThatStopsReading) {
  TestListener listener;
  const auto connection = this->tcp.Connect(L"127.0.0.1", listener.Port());
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

TYPED_TEST(TcpContract, SurvivesAListenerThatHangsUp) {
  TestListener listener;
  const auto connection = this->tcp.Connect(L"127.0.0.1", listener.Port());
  ASSERT_TRUE(connection);
  listener.Accept();
  listener.HangUp();
  bool open = true;
  for (int i = 0; i < 1000 && open; ++i) open = Send(*connection, std::string(10'000, 'x'));
  EXPECT_FALSE(open);
}

}  // namespace
}  // namespace orvane
