#include "designer/StartMenu.h"

#include <algorithm>

#include "menudata/ShellPaths.h"
#include "support/Text.h"

namespace orvane::designer {
namespace {

constexpr std::int32_t Programs = 0x02, CommonPrograms = 0x17;  // CSIDL numbers
constexpr std::size_t MostPrograms = 5000;
constexpr int DeepestFolder = 8;
constexpr std::uint32_t WalkPatience = 3000;  // milliseconds

constexpr const wchar_t* Extensions[] = {L".lnk", L".url", L".exe", L".appref-ms"};

bool IsProgram(const std::wstring& name) {
  return std::ranges::any_of(Extensions, [lower = LowerCase(name)](std::wstring_view extension) {
    return lower.ends_with(extension);
  });
}

class Walk {
 public:
  explicit Walk(FileReader& files) : m_files(files) {}

  void Into(const std::wstring& place, const std::wstring& folder, int depth) {
    const auto listing = depth <= DeepestFolder ? m_files.List(place, m_patience) : nullptr;
    FoundFile found;
    while (listing && m_found.size() < MostPrograms && listing->Next(found)) {
      const std::wstring path = place + L'\\' + found.name;
      if (!(found.attributes & FileAttribute::Directory))
        Add(found.name, folder, path);
      else if (!found.isLink)
        Into(path, folder.empty() ? found.name : folder + L'\\' + found.name, depth + 1);
    }
  }

  std::vector<StartProgram> Take() {
    std::ranges::sort(m_found, {}, [](const StartProgram& program) {
      return std::pair(LowerCase(program.Text()), program.path);
    });
    return std::move(m_found);
  }

 private:
  void Add(const std::wstring& name, const std::wstring& folder, const std::wstring& path) {
    if (IsProgram(name)) m_found.push_back({name.substr(0, name.rfind(L'.')), folder, path});
  }

  FileReader& m_files;
  Patience m_patience{WalkPatience};
  std::vector<StartProgram> m_found;
};

}  // namespace

std::wstring StartProgram::Text() const {
  return folder.empty() ? name : name + L" (" + folder + L")";
}

std::vector<StartProgram> StartMenuPrograms(const Platform& platform) {
  Walk walk(platform.files);
  for (const std::int32_t csidl : {Programs, CommonPrograms}) {
    const std::wstring place =
        PidlToPath(platform.shell, platform.shell.SpecialFolder(WindowHandle::None, csidl));
    if (!place.empty()) walk.Into(place, {}, 0);
  }
  return walk.Take();
}

std::vector<StartProgram> WithWords(const std::vector<StartProgram>& programs,
                                    const std::wstring& words) {
  std::vector<StartProgram> left = programs;
  std::wstring_view rest = words;
  while (!(rest = Trim(rest)).empty()) {
    const std::wstring word = LowerCase(rest.substr(0, rest.find(L' ')));
    rest.remove_prefix(word.size());
    std::erase_if(left, [&](const StartProgram& program) {
      return LowerCase(program.Text()).find(word) == std::wstring::npos;
    });
  }
  return left;
}

}  // namespace orvane::designer
