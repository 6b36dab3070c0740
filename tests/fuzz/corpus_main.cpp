// Every text of the corpus, and every beginning of it: what the fuzzer has found stays found.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int texts = 0;
  for (const auto& file : std::filesystem::directory_iterator(argv[1])) {
    std::ifstream stream(file.path(), std::ios::binary);
    const std::vector<std::uint8_t> text{std::istreambuf_iterator<char>(stream), {}};
    for (std::size_t length = 0; length <= text.size(); ++length) LLVMFuzzerTestOneInput(text.data(), length);
    ++texts;
  }
  std::cout << texts << " texts\n";
  return texts > 0 ? 0 : 1;
}
