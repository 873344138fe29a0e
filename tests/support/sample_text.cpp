#include "tests/support/sample_text.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/support/tool_text.h"

std::string SampleAnswer(const std::string& name) {
  const std::string path = std::string(ZENX_SAMPLES "/machine/zenx/answers/") + name + ".txt";
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path + " cannot be read");
  return CrLf(std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
}
