#include "win32/FileSystem.h"

#include <windows.h>

#include <algorithm>

#include "win32/FolderWalk.h"
#include "win32/GrowingText.h"
#include "win32/NativePath.h"
#include "win32/Patience.h"
#include "win32/UniqueHandle.h"

namespace orvane::win32 {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

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

/// A whole file, or why it cannot be had.
struct Contents {
  std::optional<std::vector<std::byte>> bytes;
  DWORD error = ERROR_SEM_TIMEOUT;
};

Contents ReadAll(const std::wstring& path, std::size_t limit) {
  const UniqueKernelHandle file = OpenOnDisk(path, GENERIC_READ, ShareAll, OPEN_EXISTING);
  LARGE_INTEGER size{};
  if (!file || !GetFileSizeEx(file.get(), &size)) return {{}, GetLastError()};
  constexpr std::size_t OneRead = 0xFFFF'0000;
  if (static_cast<std::uint64_t>(size.QuadPart) > std::min(limit, OneRead))
    return {{}, ERROR_FILE_TOO_LARGE};
  std::vector<std::byte> bytes(static_cast<std::size_t>(size.QuadPart));
  DWORD read = 0;
  if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
    return {{}, GetLastError()};
  bytes.resize(read);
  return {std::move(bytes), ERROR_SUCCESS};
}

std::optional<FileIdentity> IdentityOf(const std::wstring& path) {
  const auto file = TakeHandle<UniqueKernelHandle>(
      CreateFileW(NativePath(path).c_str(), 0, ShareAll, nullptr, OPEN_EXISTING,
                  FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION info{};
  if (!file || !GetFileInformationByHandle(file.get(), &info)) return std::nullopt;
  return FileIdentity{info.dwVolumeSerialNumber,
                      std::uint64_t{info.nFileIndexHigh} << 32 | info.nFileIndexLow};
}

}  // namespace

/// What `ask` answers, or a default answer when it lies on a network that is too slow.
template <class Ask>
auto FileSystem::Within(const std::wstring& path, const Patience& patience, Ask ask) {
  using Answer = decltype(ask());
  return Waits(path, patience) ? AskWithPatience(ask, patience, Answer{}, path) : ask();
}

std::optional<std::vector<std::byte>> FileSystem::Read(const std::wstring& path, std::size_t limit,
                                                       const Patience& patience) {
  Contents contents = Within(path, patience, [path, limit] { return ReadAll(path, limit); });
  if (!contents.bytes) m_lastError = contents.error;
  return std::move(contents.bytes);
}

bool FileSystem::Waits(const std::wstring& path, const Patience& patience) {
  return !patience.IsBoundless() && LiesOnNetwork(path);
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
  const Answer answer = Within(path, patience, ask);
  if (answer.attributes == INVALID_FILE_ATTRIBUTES) return m_lastError = answer.error, std::nullopt;
  return answer.attributes;
}

bool FileSystem::LiesOnNetwork(const std::wstring& path) {
  return IsOnNetwork(path);
}

std::unique_ptr<DirectoryListing> FileSystem::List(const std::wstring& folder,
                                                   const Patience& patience) {
  if (folder.empty()) return m_lastError = ERROR_PATH_NOT_FOUND, nullptr;
  const bool ended = folder.back() == L'\\' || folder.back() == L'/';
  const std::wstring pattern = NativePath(folder + (ended ? L"*" : L"\\*"));
  FolderWalk walk = Within(folder, patience, [pattern] { return FolderWalk(pattern); });
  if (walk.Failure() != 0) return m_lastError = walk.Failure(), nullptr;
  return MakeListing(std::move(walk), folder, Waits(folder, patience) ? &patience : nullptr);
}

std::optional<FileIdentity> FileSystem::Identity(const std::wstring& path,
                                                 const Patience& patience) {
  return Within(path, patience, [path] { return IdentityOf(path); });
}

std::wstring FileSystem::ShortName(const std::wstring& path, const Patience& patience) {
  const auto ask = [native = NativePath(path)] {
    return GrowingText([&native](wchar_t* text, DWORD size) {
      return GetShortPathNameW(native.c_str(), text, size);
    });
  };
  const std::wstring name = Within(path, patience, ask);
  Check(!name.empty());
  return name;
}

std::wstring FileSystem::WorkingDirectory() {
  return GrowingText([](wchar_t* text, DWORD size) { return GetCurrentDirectoryW(size, text); });
}

std::unique_ptr<OutputFile> FileSystem::OpenToWrite(const std::wstring& path, Open how) {
  const bool append = how == Open::Append;
  // Not CREATE_ALWAYS, which is denied a hidden file.
  UniqueKernelHandle file = OpenOnDisk(path, GENERIC_WRITE, 0, OPEN_ALWAYS);
  const bool atEnd = file && (append ? SetFilePointerEx(file.get(), {}, nullptr, FILE_END)
                                     : SetEndOfFile(file.get()));
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
