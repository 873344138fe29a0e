#include "tests/support/sample_text.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/support/source_folder.h"
#include "tests/support/tool_text.h"

namespace {

namespace fs = std::filesystem;

const fs::path kAnswers = SourceFile("samples/machine/zenx/answers");

// "getconfig-al" for controller 1 is the command "getconfig 1 al", "getstatus" is "getstatus 1".
std::string CommandLine(const std::string& name, const std::string& number) {
  const std::size_t dash = name.find('-');
  return name.substr(0, dash) + " " + number + (dash == name.npos ? "" : " " + name.substr(dash + 1));
}

}  // namespace

std::string SampleAnswer(const std::string& name) {
  std::ifstream file(kAnswers / (name + ".txt"), std::ios::binary);
  if (!file) throw std::runtime_error("No sample answer " + name);
  return CrLf(std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
}

std::map<std::string, std::string> AllAnswersOf(const std::string& tool) {
  std::map<std::string, std::string> answers;
  for (int controller = 1; controller <= 8; ++controller) {
    const std::string number = std::to_string(controller);
    const fs::path folder = kAnswers / tool / number;
    if (!fs::is_directory(folder)) {
      answers[tool + " getconfig " + number + " al"] = SampleAnswer(tool + "/other");
      continue;
    }
    for (const auto& file : fs::directory_iterator(folder)) {
      const std::string name = file.path().stem().string();
      answers[tool + " " + CommandLine(name, number)] = SampleAnswer(tool + "/" + number + "/" + name);
    }
  }
  return answers;
}

std::map<std::string, std::string> AllAnswers() {
  auto answers = AllAnswersOf("qcmdrun");
  answers.merge(AllAnswersOf("hrconf_64"));
  answers.merge(AllAnswersOf("arcconf"));
  return answers;
}
