// The symbols by which a module is linked at run time.
#include "tests/scenario/DynamicSymbols.h"

#include <gtest/gtest.h>

#include <elf.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>

namespace tests {

namespace {

class ElfFile {
  public:
    explicit ElfFile(const std::filesystem::path& path) {
        std::ifstream in(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(in), {});
    }

    template <class Record> Record read(std::size_t offset) const {
        Record record{};
        if (offset <= bytes_.size() && sizeof record <= bytes_.size() - offset)
            std::memcpy(&record, bytes_.data() + offset, sizeof record);
        return record;
    }

    std::string text(std::size_t offset) const {
        return offset < bytes_.size() ? std::string(bytes_.c_str() + offset) : std::string();
    }

    Elf64_Shdr section(std::size_t index) const {
        const auto header = read<Elf64_Ehdr>(0);
        return read<Elf64_Shdr>(header.e_shoff + index * sizeof(Elf64_Shdr));
    }

    std::optional<Elf64_Shdr> symbolTable() const {
        for (std::size_t index = 0; index < read<Elf64_Ehdr>(0).e_shnum; ++index) {
            if (section(index).sh_type == SHT_DYNSYM)
                return section(index);
        }
        return std::nullopt;
    }

  private:
    std::string bytes_;
};

} // namespace

std::vector<DynamicSymbol> dynamicSymbols(const std::filesystem::path& module) {
    const ElfFile file(module);
    const std::optional<Elf64_Shdr> table = file.symbolTable();
    if (!table) {
        ADD_FAILURE() << module << " has no table of dynamic symbols";
        return {};
    }
    const std::size_t names = file.section(table->sh_link).sh_offset;
    std::vector<DynamicSymbol> symbols;
    // The first entry stands for no symbol.
    for (std::size_t offset = sizeof(Elf64_Sym); offset < table->sh_size; offset += sizeof(Elf64_Sym)) {
        const auto symbol = file.read<Elf64_Sym>(table->sh_offset + offset);
        const auto binding = ELF64_ST_BIND(symbol.st_info);
        symbols.push_back({file.text(names + symbol.st_name),
                           symbol.st_shndx != SHN_UNDEF && binding != STB_LOCAL, binding == STB_GNU_UNIQUE});
    }
    return symbols;
}

} // namespace tests
