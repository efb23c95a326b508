#include "menudata/FieldText.h"

#include <algorithm>
#include <new>

namespace orvane {

FieldText::Block* FieldText::MakeBlock(std::wstring_view text) {
  if (text.empty()) return nullptr;
  void* memory = ::operator new(sizeof(Block) + text.size() * sizeof(wchar_t));
  Block* block = new (memory) Block{text.size()};
  std::ranges::copy(text, Characters(block));
  return block;
}

}  // namespace orvane
