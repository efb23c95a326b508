#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace orvane {

/// A numbered error, thrown inside the component and caught at the one exit of each operation that
/// can fail.
class Error : public std::exception {
 public:
  static constexpr std::int32_t InvalidArgument = 5;
  static constexpr std::int32_t Overflow = 6;
  static constexpr std::int32_t OutOfMemory = 7;
  static constexpr std::int32_t OutOfRange = 9;
  static constexpr std::int32_t TypeMismatch = 13;
  static constexpr std::int32_t Internal = 51;

  /// `osError` is the system's own code, 0 when it has none.
  Error(std::int32_t number, std::wstring description, std::wstring source = {},
        std::uint32_t osError = 0)
      : m_number(number),
        m_description(std::move(description)),
        m_source(std::move(source)),
        m_osError(osError) {}

  std::int32_t Number() const { return m_number; }
  const std::wstring& Description() const { return m_description; }
  const std::wstring& Source() const { return m_source; }
  std::uint32_t OsError() const { return m_osError; }
  const char* what() const noexcept override { return "orvane::Error"; }

 private:
  std::int32_t m_number;
  std::wstring m_description;
  std::wstring m_source;
  std::uint32_t m_osError;
};

/// The thread's last raised error; number 0 is none.
struct PendingError {
  std::int32_t number = 0;
  std::wstring source;
  std::wstring description;
  std::uint32_t osError = 0;  // the system's own error code, 0 when it had none
};

/// Turns the exception being handled into an error record: an Error as it is, no memory as 7,
/// anything else as Internal. Call it inside a catch clause only.
PendingError CaughtError() noexcept;

}  // namespace orvane
