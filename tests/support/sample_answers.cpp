#include "tests/support/sample_answers.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "host/hxacore/host_services.h"
#include "tests/support/tool_text.h"

namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return CrLf(std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()));
}

// As the sample machine's programs choose it.
std::string Answer(const fs::path& tool, const std::vector<std::string>& arguments) {
  const fs::path answers = fs::path(ZENX_SAMPLES) / "machine" / "zenx" / "answers" / tool.stem();
  const fs::path controller = answers / arguments.at(1);
  if (!fs::is_directory(controller)) return ReadText(answers / "other.txt");
  const std::string option = arguments.size() > 2 ? "-" + arguments[2] : "";
  return ReadText(controller / (arguments[0] + option + ".txt"));
}

}  // namespace

SampleAnswers::SampleAnswers(ScriptedServices& scripted) {
  NKVRHXA20::HostServices services = NKVRHXA20::CurrentServices();
  services.spawn = [&scripted](const std::string& path, const std::vector<std::string>& arguments, int) {
    std::string run = fs::path(path).stem().string();
    for (const std::string& argument : arguments) run += " " + argument;
    scripted.runs.push_back(run);
    const auto scriptedAnswer = scripted.answers.find(run);
    return scriptedAnswer == scripted.answers.end() ? Answer(path, arguments) : scriptedAnswer->second;
  };
  NKVRHXA20::SetServices(std::move(services));
}
