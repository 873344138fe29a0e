#include "host/hxacore/whole_file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace NKVRHXA20 {

WholeFile ReadWholeFile(const std::filesystem::path& path, std::uint64_t largest) {
  const OrdinaryFile file = OpenOrdinaryFile(path, "rb", largest);
  WholeFile read{"", file.refusal, file.isTooLarge};
  if (!file.stream) return read;
  std::array<char, std::size_t{64} << 10U> piece;
  std::size_t count = piece.size();
  while (count == piece.size() && !read.isTooLarge) {
    count = std::fread(piece.data(), 1, piece.size(), file.stream.get());
    if (std::ferror(file.stream.get()) != 0) read.refusal = std::generic_category().message(errno);
    read.bytes.append(piece.data(), count);
    read.isTooLarge = read.bytes.size() > largest;
  }
  if (read.isTooLarge) read.refusal = "it is " + LargerThan(largest);
  return read;
}

}  // namespace NKVRHXA20
