#pragma once

#include <string>
#include <vector>

#include "platform/DataObject.h"

namespace orvane::designer {

/// The selection for which menus are previewed and tasks shown: names in a folder. Without names it
/// is the folder's background that is clicked.
struct Sample {
  std::wstring folder = L"C:\\";
  std::vector<std::wstring> names = {L"Example.txt"};  // without the folder

  std::vector<std::wstring> Paths() const;
  /// "2 items in C:\Work".
  std::wstring Text() const;
};

/// The sample of these paths, which lie in one folder.
Sample SampleOf(const std::vector<std::wstring>& paths);

/// The sample as the shell would hand it over.
class SampleSelection : public DataObject {
 public:
  explicit SampleSelection(const Sample& sample) : m_paths(sample.Paths()) {}

  std::int32_t Files(FileNames& names) override;

 private:
  std::vector<std::wstring> m_paths;
};

}  // namespace orvane::designer
