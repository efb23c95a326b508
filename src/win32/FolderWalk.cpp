#include "win32/FolderWalk.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "win32/Patience.h"

namespace orvane::win32 {

namespace {

bool IsDots(const wchar_t* name) {
  return name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'));
}

/// A link or mount point, and not a file of some other file system's making, such as one that lives
/// in a cloud.
bool IsLink(const WIN32_FIND_DATAW& data) {
  return (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         IsReparseTagNameSurrogate(data.dwReserved0);
}

class LocalListing : public DirectoryListing {
 public:
  explicit LocalListing(FolderWalk walk) : m_walk(std::move(walk)) {}

  bool Next(FoundFile& found) override { return m_walk.Next(found); }
  bool IsWhole() const override { return m_walk.IsWhole(); }

 private:
  FolderWalk m_walk;
};

class NetworkListing : public DirectoryListing {
 public:
  NetworkListing(FolderWalk walk, std::wstring folder, const Patience& patience)
      : m_walk(std::make_shared<FolderWalk>(std::move(walk))),
        m_folder(std::move(folder)),
        m_patience(patience) {}

  bool Next(FoundFile& found) override {
    if (m_next == m_piece.found.size() && !Fetch()) return false;
    found = std::move(m_piece.found[m_next++]);
    return true;
  }
  bool IsWhole() const override { return m_piece.whole; }

 private:
  struct Piece {
    std::vector<FoundFile> found;
    bool last = true;
    bool whole = false;
  };

  static Piece Take(FolderWalk& walk) {
    constexpr std::size_t PieceSize = 256;
    Piece piece;
    FoundFile found;
    while (piece.found.size() < PieceSize && walk.Next(found))
      piece.found.push_back(std::move(found));
    piece.last = piece.found.size() < PieceSize;
    piece.whole = walk.IsWhole();
    return piece;
  }

  /// A walk that is late stays with the thread that waits for it.
  bool Fetch() {
    if (m_over) return false;
    m_piece =
        AskWithPatience([walk = m_walk] { return Take(*walk); }, m_patience, Piece(), m_folder);
    m_next = 0;
    m_over = m_piece.last;
    return !m_piece.found.empty();
  }

  std::shared_ptr<FolderWalk> m_walk;
  std::wstring m_folder;
  const Patience& m_patience;
  Piece m_piece;
  std::size_t m_next = 0;
  bool m_over = false;
};

}  // namespace

FolderWalk::FolderWalk(const std::wstring& pattern)
    : m_handle(TakeHandle<UniqueFindHandle>(FindFirstFileExW(pattern.c_str(), FindExInfoBasic,
                                                             &m_data, FindExSearchNameMatch,
                                                             nullptr, FIND_FIRST_EX_LARGE_FETCH))),
      m_waiting(m_handle),
      m_error(m_handle ? ERROR_SUCCESS : GetLastError()) {}

bool FolderWalk::Next(FoundFile& found) {
  while (Step()) {
    if (IsDots(m_data.cFileName)) continue;
    found = {m_data.cFileName, m_data.dwFileAttributes, IsLink(m_data)};
    return true;
  }
  return false;
}

bool FolderWalk::Step() {
  if (std::exchange(m_waiting, false)) return true;
  if (!m_handle) return false;
  if (FindNextFileW(m_handle.get(), &m_data)) return true;
  m_error = GetLastError();
  return false;
}

std::unique_ptr<DirectoryListing> MakeListing(FolderWalk walk, const std::wstring& folder,
                                              const Patience* patience) {
  if (!patience) return std::make_unique<LocalListing>(std::move(walk));
  return std::make_unique<NetworkListing>(std::move(walk), folder, *patience);
}

}  // namespace orvane::win32
