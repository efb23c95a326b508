#include "win32/FileSystem.h"

#include <windows.h>

#include <algorithm>

#include "win32/GrowingText.h"
#include "win32/NativePath.h"
#include "win32/Patience.h"
#include "win32/UniqueHandle.h"

namespace orvane::win32 {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A walk that has made its first step, which is the one that opens the folder.
struct Walk {
  UniqueFindHandle handle;
  WIN32_FIND_DATAW data{};
  DWORD error = ERROR_SUCCESS;
};

Walk StartWalk(const std::wstring& pattern) {
  Walk walk;
  walk.handle = TakeHandle<UniqueFindHandle>(FindFirstFileExW(pattern.c_str(), FindExInfoBasic,
                                                              &walk.data, FindExSearchNameMatch,
                                                              nullptr, FIND_FIRST_EX_LARGE_FETCH));
  if (!walk.handle) walk.error = GetLastError();
  return walk;
}

bool IsDots(const wchar_t* name) {
  return name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'));
}

class Listing : public DirectoryListing {
 public:
  explicit Listing(Walk walk) : m_walk(std::move(walk)), m_waiting(m_walk.handle) {}

  bool Next(FoundFile& found) override {
    while (Step()) {
      if (IsDots(m_walk.data.cFileName)) continue;
      found.name = m_walk.data.cFileName;
      found.attributes = m_walk.data.dwFileAttributes;
      return true;
    }
    return false;
  }

 private:
  bool Step() {
    if (m_waiting) return m_waiting = false, true;
    return m_walk.handle && FindNextFileW(m_walk.handle.get(), &m_walk.data);
  }

  Walk m_walk;
  bool m_waiting;  // the first step's entry has not been given out
};

class Output : public OutputFile {
 public:
  Output(UniqueKernelHandle handle, std::uint32_t& lastError)
      : m_handle(std::move(handle)), m_lastError(lastError) {}

  bool Write(std::span<const std::byte> bytes) override {
    while (!bytes.empty()) {
      const auto piece = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1 << 30));
      DWORD written = 0;
      if (!WriteFile(m_handle.get(), bytes.data(), piece, &written, nullptr) || written == 0) {
        m_lastError = GetLastError();
        return false;
      }
      bytes = bytes.subspan(written);
    }
    return true;
  }

 private:
  UniqueKernelHandle m_handle;
  std::uint32_t& m_lastError;
};

/// Opens a file on a disk. A name may stand for a device ("CON"), which could keep us waiting.
UniqueKernelHandle OpenOnDisk(const std::wstring& path, DWORD access, DWORD share,
                              DWORD disposition) {
  auto handle =
      TakeHandle<UniqueKernelHandle>(CreateFileW(NativePath(path).c_str(), access, share, nullptr,
                                                 disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (handle && GetFileType(handle.get()) != FILE_TYPE_DISK) {
    handle.reset();
    SetLastError(ERROR_BAD_DEVICE);
  }
  return handle;
}

}  // namespace

std::optional<std::vector<std::byte>> FileSystem::Read(const std::wstring& path,
                                                       std::size_t limit) {
  const UniqueKernelHandle file = OpenOnDisk(path, GENERIC_READ, ShareAll, OPEN_EXISTING);
  LARGE_INTEGER size{};
  if (!Check(file && GetFileSizeEx(file.get(), &size))) return std::nullopt;
  constexpr std::size_t OneRead = 0xFFFF'0000;
  if (static_cast<std::uint64_t>(size.QuadPart) > std::min(limit, OneRead)) {
    m_lastError = ERROR_FILE_TOO_LARGE;
    return std::nullopt;
  }
  std::vector<std::byte> bytes(static_cast<std::size_t>(size.QuadPart));
  DWORD read = 0;
  if (!Check(
          ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))) {
    return std::nullopt;
  }
  bytes.resize(read);
  return bytes;
}

bool FileSystem::Waits(const std::wstring& path, const Patience& patience) {
  return patience.milliseconds != Patience::Endless && LiesOnNetwork(path);
}

std::optional<std::uint32_t> FileSystem::Attributes(const std::wstring& path,
                                                    const Patience& patience) {
  struct Answer {
    DWORD attributes = INVALID_FILE_ATTRIBUTES;
    DWORD error = ERROR_SEM_TIMEOUT;
  };
  const auto ask = [native = NativePath(path)] {
    const DWORD attributes = GetFileAttributesW(native.c_str());
    return Answer{attributes, GetLastError()};
  };
  const Answer answer = Waits(path, patience) ? AskWithPatience(ask, patience, Answer{}) : ask();
  if (answer.attributes == INVALID_FILE_ATTRIBUTES) return m_lastError = answer.error, std::nullopt;
  return answer.attributes;
}

/// Asking a drive for its kind takes as long as listing a folder, or, under Wine, a hundred files.
bool FileSystem::LiesOnNetwork(const std::wstring& folder) {
  constexpr std::uint64_t Lifetime = 2000;
  const std::size_t colon = folder.find(L':');
  if (colon == std::wstring::npos) return IsOnNetwork(folder);
  const std::wstring_view drive = std::wstring_view(folder).substr(0, colon + 1);
  const std::uint64_t now = GetTickCount64();
  if (drive != m_drive || now - m_driveAsked > Lifetime) {
    m_driveIsRemote = IsOnNetwork(folder);
    m_drive = drive;
    m_driveAsked = now;
  }
  return m_driveIsRemote;
}

std::unique_ptr<DirectoryListing> FileSystem::List(const std::wstring& folder,
                                                   const Patience& patience) {
  if (folder.empty()) return m_lastError = ERROR_PATH_NOT_FOUND, nullptr;
  const bool ended = folder.back() == L'\\' || folder.back() == L'/';
  const std::wstring pattern = NativePath(folder + (ended ? L"*" : L"\\*"));
  Walk late;
  late.error = ERROR_SEM_TIMEOUT;
  const auto start = [pattern] { return StartWalk(pattern); };
  Walk walk = Waits(folder, patience) ? AskWithPatience(start, patience, std::move(late)) : start();
  // An empty root folder has not even the two dots to find.
  if (!walk.handle && walk.error != ERROR_FILE_NOT_FOUND) return m_lastError = walk.error, nullptr;
  return std::make_unique<Listing>(std::move(walk));
}

std::wstring FileSystem::ShortName(const std::wstring& path, const Patience& patience) {
  const auto ask = [native = NativePath(path)] {
    return GrowingText([&native](wchar_t* text, DWORD size) {
      return GetShortPathNameW(native.c_str(), text, size);
    });
  };
  const std::wstring name =
      Waits(path, patience) ? AskWithPatience(ask, patience, std::wstring()) : ask();
  Check(!name.empty());
  return name;
}

std::wstring FileSystem::WorkingDirectory() {
  return GrowingText([](wchar_t* text, DWORD size) { return GetCurrentDirectoryW(size, text); });
}

std::unique_ptr<OutputFile> FileSystem::OpenToWrite(const std::wstring& path, Open how) {
  const bool append = how == Open::Append;
  UniqueKernelHandle file =
      OpenOnDisk(path, GENERIC_WRITE, 0, append ? OPEN_ALWAYS : CREATE_ALWAYS);
  const bool atEnd = file && (!append || SetFilePointerEx(file.get(), {}, nullptr, FILE_END));
  if (!Check(atEnd)) return nullptr;
  return std::make_unique<Output>(std::move(file), m_lastError);
}

bool FileSystem::Remove(const std::wstring& path) {
  return Check(DeleteFileW(NativePath(path).c_str()));
}

bool FileSystem::Replace(const std::wstring& from, const std::wstring& to) {
  return Check(MoveFileExW(NativePath(from).c_str(), NativePath(to).c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

bool FileSystem::ChangeDirectory(const std::wstring& folder) {
  return Check(SetCurrentDirectoryW(folder.c_str()));
}

bool FileSystem::Check(bool success) {
  if (!success) m_lastError = GetLastError();
  return success;
}

}  // namespace orvane::win32
