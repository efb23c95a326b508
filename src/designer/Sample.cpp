#include "designer/Sample.h"

namespace orvane::designer {

std::vector<std::wstring> Sample::Paths() const {
  std::vector<std::wstring> paths;
  const wchar_t* between = folder.ends_with(L'\\') ? L"" : L"\\";
  for (const std::wstring& name : names) paths.push_back(folder + between + name);
  return paths;
}

std::wstring Sample::Text() const {
  if (names.empty()) return L"nothing selected in " + folder;
  if (names.size() == 1) return names.front() + L" in " + folder;
  return std::to_wstring(names.size()) + L" items in " + folder;
}

Sample SampleOf(const std::vector<std::wstring>& paths) {
  Sample sample{.folder = {}, .names = {}};
  for (const std::wstring& path : paths) {
    const std::size_t name = path.find_last_of(L'\\') + 1;
    // A drive's root keeps its backslash.
    sample.folder = path.substr(0, name > 3 ? name - 1 : name);
    sample.names.push_back(path.substr(name));
  }
  return sample;
}

std::int32_t SampleSelection::Files(FileNames& names) {
  for (const std::wstring& path : m_paths) names.Add(path);
  return 0;
}

}  // namespace orvane::designer
