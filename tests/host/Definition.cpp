#include "host/Definition.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "menudata/clsOrvaneData.h"
#include "support/Scrambler.h"

namespace orvane::host {
namespace {

/// Appends value records: a tag, the length, the scrambled characters.
class Writer {
 public:
  explicit Writer(const std::wstring& path)
      : m_file(std::filesystem::path(path), std::ios::binary) {}

  void Value(const std::wstring& text) {
    std::vector<std::byte> bytes;
    for (const wchar_t character : text) bytes.push_back(static_cast<std::byte>(character));
    m_scrambler.Scramble(bytes);
    Number(8);
    Number(bytes.size());
    m_file.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
  }

 private:
  void Number(std::size_t number) {
    m_file.put(static_cast<char>(number)).put(static_cast<char>(number >> 8));
  }

  std::ofstream m_file;
  Scrambler m_scrambler{L"QWXKRTZPV"};
};

}  // namespace

void WriteDefinition(const std::wstring& path, const std::vector<DefinitionItem>& items) {
  Writer writer(path);
  writer.Value(L"1");
  writer.Value(L"0," + std::to_wstring(items.size()));
  for (const DefinitionItem& item : items) {
    writer.Value(std::to_wstring(item.parent) + L"," + std::to_wstring(item.type) + L"," +
                 std::to_wstring(item.options));
    for (const std::wstring& value : item.values) writer.Value(value);
  }
}

void WriteFileItems(const std::wstring& path, int count) {
  std::vector<DefinitionItem> items = {{0, clsOrvaneData::TypeRoot, 0, {L"Orvane"}}};
  for (int i = 1; i <= count; ++i) {
    const std::wstring name = L"Document " + std::to_wstring(i);
    items.push_back({1, clsOrvaneData::TypeFile, 0, {L"C:\\Work\\" + name + L".txt", name}});
  }
  WriteDefinition(path, items);
}

}  // namespace orvane::host
