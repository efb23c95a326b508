#include "support/Number.h"

#include <gtest/gtest.h>

#include "support/ErrorOf.h"

namespace orvane {
namespace {

using test::ErrorOf;

TEST(Number, WholeTexts) {
  EXPECT_EQ(5, ParseNumber(L" 5"));
  EXPECT_EQ(-12, ParseNumber(L"\t-12 \t"));
  EXPECT_EQ(12, ParseNumber(L"+0000000000000000000000000012"));
  EXPECT_EQ(INT32_MAX, ParseNumber(L"2147483647"));
  EXPECT_EQ(INT32_MIN, ParseNumber(L"-2147483648"));
  for (const wchar_t* text : {L"2147483648", L"-2147483649", L"99999999999999999999999999999999"})
    EXPECT_EQ(Error::Overflow, ErrorOf([&] { ParseNumber(text); })) << text;
  // The last but one is a digit, but not a decimal one of ours.
  for (const wchar_t* text : {L"", L" ", L"-", L"+-1", L"12x", L"1e3", L"1 2", L"\x0661",
                              L"99999999999999999999999999999999x"})
    EXPECT_EQ(Error::TypeMismatch, ErrorOf([&] { ParseNumber(text); })) << text;
  EXPECT_EQ(-32768, ParseNumber16(L" -32768"));
  EXPECT_EQ(Error::Overflow, ErrorOf([] { ParseNumber16(L"32768"); }));
  EXPECT_EQ(Error::Overflow, ErrorOf([] { ParseNumber16(L"-32769"); }));
}

TEST(Number, LeadingDigits) {
  EXPECT_EQ(12, ParseLeadingNumber(L"012x"));
  EXPECT_EQ(0, ParseLeadingNumber(L" 5"));
  EXPECT_EQ(INT32_MAX, ParseLeadingNumber(L"2147483647"));
  EXPECT_EQ(0, ParseLeadingNumber(L"99999999999999999999999"));
}

}  // namespace
}  // namespace orvane
