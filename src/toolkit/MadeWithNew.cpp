#include "toolkit/MadeWithNew.h"

#include <functional>
#include <vector>

namespace AdvancedControl {

namespace {

struct Block {
  std::byte* begin;
  std::size_t size;
};

// Memory from MadeWithNew::operator new that has no object yet.
std::vector<Block>& NewBlocks() {
  static std::vector<Block> blocks;
  return blocks;
}

bool TakeNewBlock(const void* object) {
  const auto* at = static_cast<const std::byte*>(object);
  return std::erase_if(NewBlocks(), [at](const Block& block) {
           return !std::less<>()(at, block.begin) && std::less<>()(at, block.begin + block.size);
         }) > 0;
}

}  // namespace

MadeWithNew::MadeWithNew() : isMadeWithNew_(TakeNewBlock(this)) {}

void* MadeWithNew::operator new(std::size_t size) {
  void* block = ::operator new(size);
  NewBlocks().push_back({static_cast<std::byte*>(block), size});
  return block;
}

void* MadeWithNew::operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void MadeWithNew::operator delete(void* object) {
  TakeNewBlock(object);  // still listed if the constructor was never reached
  ::operator delete(object);
}

}  // namespace AdvancedControl
