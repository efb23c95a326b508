#include "support/clsSprintf.h"

#include <gtest/gtest.h>

#include "platform/memory/Windows1252.h"
#include "support/Error.h"

namespace orvane {
namespace {

CodePage Page() {
  return CodePage(memory::Windows1252());
}

using Values = std::vector<clsSprintf::Value>;

TEST(clsSprintf, Formats) {
  struct {
    std::wstring format;
    Values values;
    std::wstring text;
  } const rows[] = {
      {L"", {}, L""},
      {L"100%%", {}, L"100%"},
      {L"%%%d%%", {7}, L"%7%"},
      {L"%s and %S", {L"one", L"two\x00E4"}, L"one and TWO\x00C4"},
      {L"[%5s][%-5s][%05s]", {L"ab", L"ab", L"ab"}, L"[   ab][ab   ][000ab]"},
      {L"[%.2s][%4.2s]", {L"abcdef", L"abcdef"}, L"[ab][  ab]"},
      {L"[%.4s]", {L"ab"}, L"[  ab]"},  // the width is never below the precision
      {L"%d %i %u %ld", {-1, 2, -1, INT32_MIN}, L"-1 2 4294967295 -2147483648"},
      {L"[%5d][%-5d][%05d][%+d][% d]", {42, 42, -42, 42, 42}, L"[   42][42   ][-0042][+42][ 42]"},
      {L"[%.4d][%6.3d]", {42, 42}, L"[0042][   042]"},
      {L"%x %X %#x %04x", {255, 255, -1, 10}, L"ff FF 0xffffffff 000a"},
      {L"%f %.2f %8.1f|%-8.1f|", {1.5, 2.675, -3.25, 3.25}, L"1.500000 2.67     -3.2|3.2     |"},
      {L"%e %E %g %G", {12345.678, 0.5, 1e-10, 1e20}, L"1.234568e+04 5.000000E-01 1e-10 1E+20"},
      // Values are converted to the kind that is asked for.
      {L"%d %d %s %s %f %g", {L" 12 ", 2.5, 7, 0.5, 3, L" -2.5 "}, L"12 2 7 0.5 3.000000 -2.5"},
      // Escapes, those in the values too.
      {L"a\\tb%s", {L"\\n"}, L"a\tb\r\n"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.text, clsSprintf::Sprintf(row.format, row.values, Page())) << row.format;
}

TEST(clsSprintf, Errors) {
  struct {
    std::wstring format;
    Values values;
    std::int32_t number;
    std::wstring description;
  } const rows[] = {
      {L"%s", {1, 2}, 450, L"Mismatch of parameters for string %s.  Expected 1 but received 2."},
      {L"x", {1}, 450, L"Mismatch of parameters for string x.  Expected 0 but received 1."},
      {L"%5%d", {1}, 450, L"Mismatch of parameters for string %5%d.  Expected 2 but received 1."},
      {L"%lx", {1}, 93, L"Unrecognized pattern %lx in %lx"},
      {L"a%5lx", {1}, 93, L"Unrecognized pattern 5lx in a%5lx"},
      {L"%l", {1}, 93, L"Unrecognized pattern %l in %l"},
      {L"50%", {1}, 93, L"Invalid % format in <50%>"},
      {L"%5 !", {1}, 93, L"Invalid % format in <%5 !>"},
      {L"%d", {L"x"}, Error::TypeMismatch, L"Type mismatch"},
      {L"%x", {3e9}, Error::Overflow, L"Overflow"},
      {L"%99999d", {1}, Error::Overflow, L"Overflow"},
      {L"%.99999f", {1.0}, Error::Overflow, L"Overflow"},
  };
  for (const auto& row : rows) {
    try {
      clsSprintf::Sprintf(row.format, row.values, Page());
      ADD_FAILURE() << row.format;
    } catch (const Error& error) {
      EXPECT_EQ(row.number, error.Number()) << row.format;
      EXPECT_EQ(row.description, error.Description());
    }
  }
}

TEST(clsSprintf, BackSlashes) {
  struct {
    std::wstring text;
    std::wstring treated;
  } const rows[] = {
      {L"plain", L"plain"},
      {L"\\a\\b\\f\\t\\v", L"\a\b\f\t\v"},
      {L"1\\n2\\r3", L"1\r\n2\n3"},
      {L"C:\\\\new", L"C:\\new"},
      {L"\\\\\\n", L"\\\r\n"},
      {L"\\x41\\x6a\\x80\\x00.", std::wstring(L"Aj\x20AC\0.", 5)},
      {L"\\x4", L"x4"},
      {L"\\xg1", L"xg1"},
      {L"\\q\\\"\\", L"q\""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.treated, clsSprintf::TreatBackSlash(row.text, Page())) << row.text;
}

}  // namespace
}  // namespace orvane
