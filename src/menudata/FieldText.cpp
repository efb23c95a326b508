#include "menudata/FieldText.h"

#include <algorithm>
#include <new>

namespace orvane {

FieldText::Block* FieldText::NewBlock(std::size_t length) {
  if (length == 0) return nullptr;
  void* memory = ::operator new(sizeof(Block) + length * sizeof(wchar_t));
  return new (memory) Block{length};
}

FieldText::Block* FieldText::MakeBlock(std::wstring_view text) {
  Block* block = NewBlock(text.size());
  if (block) std::ranges::copy(text, Characters(block));
  return block;
}

}  // namespace orvane
