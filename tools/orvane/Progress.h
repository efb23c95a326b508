#pragma once

#include <cstdint>
#include <string>

namespace orvane::tool {

/// What long work is at and how far it is, in a line on a terminal; nothing elsewhere. The line
/// goes with the object.
class Progress {
 public:
  /// `size`: how much there is to do, in bytes. What is small is done before anybody looks.
  explicit Progress(std::uintmax_t size);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// `what` is done now, such as "reading".
  void Reach(const char* what, std::uintmax_t done, std::uintmax_t total);

 private:
  void Show(const std::string& line);

  bool m_isShown;
  std::string m_line;
};

}  // namespace orvane::tool
