#include "menudata/FieldText.h"

#include <algorithm>
#include <new>

namespace orvane {

FieldText::Block* FieldText::NewBlock(std::size_t length) {
  if (length == 0) return nullptr;
  return new (::operator new(BytesOf(length))) Block{length, false};
}

FieldText::Block* FieldText::MakeBlock(std::wstring_view text) {
  Block* block = NewBlock(text.size());
  if (block) std::ranges::copy(text, Characters(block));
  return block;
}

}  // namespace orvane
