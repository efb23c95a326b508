#pragma once

#include <memory>
#include <string>

struct IContextMenu;
struct IDataObject;

namespace orvane::tool {

/// One right-click through COM, as the shell makes it, with a menu that nobody sees.
class DoctorProbe {
 public:
  static constexpr unsigned First = 1000;  // identifiers lent to the handler
  static constexpr unsigned Last = 0x7FFF;

  /// A click on the item, or on the background of the folder.
  DoctorProbe(const std::wstring& path, bool background);
  ~DoctorProbe();
  DoctorProbe(const DoctorProbe&) = delete;
  DoctorProbe& operator=(const DoctorProbe&) = delete;

  /// HRESULTs of what has to succeed; what follows a failure is not tried.
  long created = -1;
  long initialized = -1;
  long queried = -1;
  double initializing = 0;  // milliseconds
  double querying = 0;

  // Only after all three succeeded.
  bool HasPopup() const;            // the menu that the handler adds
  bool IdentifiersInRange() const;  // each is lent, and counted in the answer
  bool RefusesForeignVerb() const;
  bool TerminatesTexts() const;  // also in a buffer that is too short

 private:
  void Create();
  void Query();

  struct Handler;
  std::unique_ptr<Handler> m_handler;
};

}  // namespace orvane::tool
