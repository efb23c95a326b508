#include "support/clsSprintf.h"

#include <gtest/gtest.h>

#include "memory/Windows1252.h"
#include "support/Error.h"

namespace orvane {
namespace {

using Values = std::vector<clsSprintf::Value>;

const CodePage Page(memory::Windows1252());

/// The text that is made, or the error.
std::wstring Printed(const std::wstring& format, const Values& values) {
  try {
    return clsSprintf::Sprintf(format, values, Page);
  } catch (const Error& error) {
    return L"error " + std::to_wstring(error.Number()) + L": " + error.Description();
  }
}

TEST(clsSprintf, FormatsAndErrors) {
  const struct {
    std::wstring format;
    Values values;
    std::wstring text;
  } rows[] = {
      {L"%%%d%%", {7}, L"%7%"},
      {L"%s and %S", {L"one", L"two\x00E4"}, L"one and TWO\x00C4"},
      {L"[%5s][%-5s][%05s]", {L"ab", L"ab", L"ab"}, L"[   ab][ab   ][000ab]"},
      {L"[%.2s][%4.2s]", {L"abcdef", L"abcdef"}, L"[ab][  ab]"},
      {L"[%.4s]", {L"ab"}, L"[  ab]"},  // the width is never below the precision
      {L"%d %i %u %ld", {-1, 2, -1, INT32_MIN}, L"-1 2 4294967295 -2147483648"},
      {L"[%5d][%-5d][%05d][%+d][% d]", {42, 42, -42, 42, 42}, L"[   42][42   ][-0042][+42][ 42]"},
      {L"%x %X %#x %04x", {255, 255, -1, 10}, L"ff FF 0xffffffff 000a"},
      {L"%f %.2f %-8.1f|", {1.5, 2.675, 3.25}, L"1.500000 2.67 3.2     |"},
      {L"%e %E %g %G", {12345.678, 0.5, 1e-10, 1e20}, L"1.234568e+04 5.000000E-01 1e-10 1E+20"},
      // Values are converted to the kind that is asked for.
      {L"%d %d %s %s %f %g", {L" 12 ", 2.5, 7, 0.5, 3, L" -2.5 "}, L"12 2 7 0.5 3.000000 -2.5"},
      // Escapes, those in the values too.
      {L"a\\tb%s", {L"\\n"}, L"a\tb\r\n"},
      // Errors.
      {L"%5%d",
       {1},
       L"error 450: Mismatch of parameters for string %5%d.  Expected 2 but received 1."},
      {L"a%5lx", {1}, L"error 93: Unrecognized pattern 5lx in a%5lx"},
      {L"%l", {1}, L"error 93: Unrecognized pattern %l in %l"},
      {L"50%", {1}, L"error 93: Invalid % format in <50%>"},
      {L"%d", {L"x"}, L"error 13: Type mismatch"},
      {L"%x", {3e9}, L"error 6: Overflow"},
      {L"%.99999f", {1.0}, L"error 6: Overflow"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.text, Printed(row.format, row.values)) << row.format;
}

TEST(clsSprintf, BackSlashes) {
  EXPECT_EQ(clsSprintf::TreatBackSlash(L"\\a\\b\\f\\t\\v1\\n2\\r3", Page), L"\a\b\f\t\v1\r\n2\n3");
  EXPECT_EQ(clsSprintf::TreatBackSlash(L"C:\\\\new\\q\\\"\\", Page), L"C:\\newq\"");
  EXPECT_EQ(clsSprintf::TreatBackSlash(L"\\x41\\x6a\\x80\\x00.\\xg1\\x4", Page),
            std::wstring(L"Aj\x20AC\0.xg1x4", 10));
}

}  // namespace
}  // namespace orvane
