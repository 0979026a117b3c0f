#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "i18n/ModuleImage.h"

// Makes small message-table modules, and records offsets for damaging them.

struct TestEntry {
  std::uint16_t flags;
  std::string bytes;
};

inline TestEntry Ansi(std::string_view text) { return {0, std::string(text)}; }

inline TestEntry Unicode(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return {1, bytes};
}

struct TestBlock {
  std::uint32_t low;
  std::vector<TestEntry> entries;
};

struct TestTable {
  std::uint32_t language;
  std::vector<TestBlock> blocks;
  std::uint32_t resource = 1;
};

class TestModule {
 public:
  explicit TestModule(const std::vector<TestTable>& tables, bool wide = true)
      : sizeOfOptionalHeader(wide ? 240 : 224) {
    Put16(0, 0x5A4D);
    Put32(0x3C, kHeader);
    Put32(kHeader, 0x4550);
    Put16(kHeader + 6, 1);
    Put16(kHeader + 20, sizeOfOptionalHeader);
    const std::size_t directories = kOptional + (wide ? 112 : 96);
    Put16(kOptional, wide ? 0x020B : 0x010B);
    Put32(directories - 4, 16);
    Put32(directories + 16, kAddress);
    section = kOptional + sizeOfOptionalHeader;

    std::map<std::uint32_t, std::vector<const TestTable*>> resources;
    for (const TestTable& table : tables) resources[table.resource].push_back(&table);
    names = Directory(types, {11U});
    Put32(types + 20, Relative(names) | kDirectory);
    std::vector<std::uint32_t> numbers;
    numbers.reserve(resources.size());
    for (const auto& [number, languages] : resources) numbers.push_back(number);
    std::size_t next = Directory(names, numbers);
    std::size_t slot = names + 20;
    for (const auto& [number, languages] : resources) {
      Put32(slot, Relative(next) | kDirectory);
      slot += 8;
      std::size_t languageSlot = next + 20;
      numbers.clear();
      for (const TestTable* table : languages) numbers.push_back(table->language);
      next = Directory(next, numbers);
      for (const TestTable* table : languages) {
        Put32(languageSlot, Relative(next));
        languageSlot += 8;
        lastLeaf = next;
        next = Table(next, *table);
      }
    }
    Put32(section + 12, kAddress);
    Put32(section + 16, static_cast<std::uint32_t>(bytes.size() - types));
    Put32(section + 20, static_cast<std::uint32_t>(types));
  }

  /// Writes `size` bytes of the value.
  void Put(std::size_t at, std::uint32_t value, int size) {
    bytes.resize(std::max(bytes.size(), at + static_cast<std::size_t>(size)));
    for (int i = 0; i < size; ++i) bytes[at++] = std::byte(value >> (8 * i) & 0xFF);
  }
  void Put16(std::size_t at, std::uint32_t value) { Put(at, value, 2); }
  void Put32(std::size_t at, std::uint32_t value) { Put(at, value, 4); }

  void Save(const std::string& path) const {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  }

  static constexpr std::uint32_t kHeader = 64;
  static constexpr std::size_t kOptional = kHeader + 24;
  static constexpr std::uint32_t kAddress = 0x1000;
  static constexpr std::uint32_t kDirectory = 0x80000000;

  std::vector<std::byte> bytes;
  std::uint16_t sizeOfOptionalHeader;
  // Offsets in the file: the section header, the resource directories, and the leaf of the last
  // table, which is followed by the table.
  std::size_t section = 0;
  std::size_t types = 512;
  std::size_t names = 0;
  std::size_t lastLeaf = 0;
  std::size_t LastTable() const { return lastLeaf + 16; }

 private:
  std::uint32_t Relative(std::size_t at) const { return static_cast<std::uint32_t>(at - types); }

  // Writes a directory of numbered entries, whose targets are filled in later. Returns its end.
  std::size_t Directory(std::size_t at, const std::vector<std::uint32_t>& numbers) {
    Put32(at + 12, static_cast<std::uint32_t>(numbers.size()) << 16);
    at += 16;
    for (const std::uint32_t number : numbers) {
      Put32(at, number);
      Put32(at + 4, 0);
      at += 8;
    }
    return at;
  }

  std::size_t Table(std::size_t leaf, const TestTable& table) {
    const std::size_t start = leaf + 16;
    std::size_t block = start + 4;
    std::size_t entryAt = block + 12 * table.blocks.size();
    Put32(start, static_cast<std::uint32_t>(table.blocks.size()));
    for (const TestBlock& part : table.blocks) {
      Put32(block, part.low);
      Put32(block + 4, part.low + static_cast<std::uint32_t>(part.entries.size()) - 1);
      Put32(block + 8, static_cast<std::uint32_t>(entryAt - start));
      block += 12;
      for (const TestEntry& entry : part.entries) {
        const std::size_t length = (4 + entry.bytes.size() + 3) / 4 * 4;
        Put16(entryAt, static_cast<std::uint32_t>(length));
        Put16(entryAt + 2, entry.flags);
        bytes.resize(entryAt + length);
        std::memcpy(bytes.data() + entryAt + 4, entry.bytes.data(), entry.bytes.size());
        entryAt += length;
      }
    }
    Put32(leaf, kAddress + Relative(start));
    Put32(leaf + 4, static_cast<std::uint32_t>(entryAt - start));
    return entryAt;
  }
};

/// A module whose resources all have the same languages, which all have the same table.
inline TestModule Overlapping(std::uint32_t resources, std::uint32_t languages,
                              const std::vector<TestEntry>& entries) {
  std::vector<TestTable> tables;
  for (std::uint32_t i = 1; i < resources; ++i) tables.push_back({0, {{1, {Ansi("")}}}, i});
  for (std::uint32_t i = 0; i < languages; ++i) tables.push_back({i, {{1, {Ansi("")}}}, resources});
  tables.back().blocks.front().entries = entries;
  TestModule module(tables);
  const auto leaf = static_cast<std::uint32_t>(module.lastLeaf - module.types);
  const std::size_t slots = module.names + 20;
  const std::uint32_t directory = U32(module.bytes, slots + std::size_t{8} * (resources - 1));
  for (std::size_t i = 0; i < resources; ++i) module.Put32(slots + 8 * i, directory);
  const std::size_t leaves = module.types + (directory & ~module.kDirectory) + 20;
  for (std::size_t i = 0; i < languages; ++i) module.Put32(leaves + 8 * i, leaf);
  return module;
}
