#include "support/Number.h"

#include <gtest/gtest.h>

#include <string>

#include "support/Error.h"

namespace orvane {
namespace {

constexpr std::int32_t Fine = 0;

/// The number of the error that the call ends in; 0 when it gives a value.
template <class Call>
std::int32_t ErrorOf(Call call) {
  try {
    call();
    return Fine;
  } catch (const Error& error) {
    return error.Number();
  }
}

struct Row {
  const wchar_t* text;
  std::int32_t error;
  std::int32_t value;
};

TEST(Number, ThirtyTwoBits) {
  const Row rows[] = {
      {L"0", Fine, 0},
      {L"-0", Fine, 0},
      {L" 5", Fine, 5},
      {L"\t-12 \t", Fine, -12},
      {L"+7", Fine, 7},
      {L"0000000000000000000000000012", Fine, 12},
      {L"2147483647", Fine, 2147483647},
      {L"-2147483648", Fine, INT32_MIN},
      {L"2147483648", Error::Overflow, 0},
      {L"-2147483649", Error::Overflow, 0},
      {L"99999999999999999999999999999999", Error::Overflow, 0},
      {L"-99999999999999999999999999999999", Error::Overflow, 0},
      {L"99999999999999999999999999999999x", Error::TypeMismatch, 0},
      {L"", Error::TypeMismatch, 0},
      {L" ", Error::TypeMismatch, 0},
      {L"-", Error::TypeMismatch, 0},
      {L"+-1", Error::TypeMismatch, 0},
      {L"- 1", Error::TypeMismatch, 0},
      {L"12x", Error::TypeMismatch, 0},
      {L"1e3", Error::TypeMismatch, 0},
      {L"1.0", Error::TypeMismatch, 0},
      {L"0x10", Error::TypeMismatch, 0},
      {L"1 2", Error::TypeMismatch, 0},
      {L"\x0661", Error::TypeMismatch, 0},  // a digit, but not a decimal one of ours
  };
  for (const Row& row : rows) {
    std::int32_t value = 0;
    EXPECT_EQ(row.error, ErrorOf([&] { value = ParseNumber(row.text); })) << std::wstring(row.text);
    EXPECT_EQ(row.value, value) << std::wstring(row.text);
  }
}

TEST(Number, SixteenBits) {
  EXPECT_EQ(32767, ParseNumber16(L"32767"));
  EXPECT_EQ(-32768, ParseNumber16(L" -32768"));
  EXPECT_EQ(Error::Overflow, ErrorOf([] { ParseNumber16(L"32768"); }));
  EXPECT_EQ(Error::Overflow, ErrorOf([] { ParseNumber16(L"-32769"); }));
  EXPECT_EQ(Error::TypeMismatch, ErrorOf([] { ParseNumber16(L"x"); }));
}

TEST(Number, LeadingDigits) {
  const Row rows[] = {
      {L"", Fine, 0},
      {L"12x", Fine, 12},
      {L"x12", Fine, 0},
      {L" 5", Fine, 0},
      {L"-5", Fine, 0},
      {L"007", Fine, 7},
      {L"2147483647", Fine, 2147483647},
      {L"2147483648", Fine, 0},
      {L"99999999999999999999999", Fine, 0},
  };
  for (const Row& row : rows)
    EXPECT_EQ(row.value, ParseLeadingNumber(row.text)) << std::wstring(row.text);
}

}  // namespace
}  // namespace orvane
