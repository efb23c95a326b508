#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace orvane::tool {

/// Stands in for the buffer of an output stream that goes to a Windows console: the console takes
/// UTF-16, whatever code page it is set to. A stream that goes elsewhere keeps its own buffer.
class ConsoleStream : public std::streambuf {
 public:
  /// `standardHandle`: STD_OUTPUT_HANDLE or STD_ERROR_HANDLE.
  ConsoleStream(std::ostream& stream, unsigned long standardHandle);
  ~ConsoleStream() override;

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* text, std::streamsize length) override;
  int sync() override;

 private:
  std::ostream& m_stream;
  void* m_console;
  std::streambuf* m_before = nullptr;
  std::string m_pending;  // UTF-8, perhaps cut within a character
};

}  // namespace orvane::tool
