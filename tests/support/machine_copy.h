#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"

// A copy of the sample machine, for a test to break. Answers are named "arcconf/1/getconfig-al".
class MachineCopy {
 public:
  MachineCopy() { std::filesystem::copy(SampleMachine(), folder_.Path(), std::filesystem::copy_options::recursive); }

  std::string Directory() const { return hxahost::Utf8FromPath(folder_.Path()); }

  void RemoveTool(const std::string& tool) const { std::filesystem::remove(Zenx() / (tool + ".exe")); }

  // Replaces a tool by a script.
  void SetTool(const std::string& tool, std::string_view script) const {
    folder_.Write("zenx/" + tool + ".exe", script);
  }

  // From now on the tool has no controllers.
  void RemoveControllers(const std::string& tool) const {
    for (const auto& entry : std::filesystem::directory_iterator(Zenx() / "answers" / tool)) {
      if (entry.is_directory()) std::filesystem::remove_all(entry.path());
    }
  }

  // Only one tool has controllers: the others answer that they have none.
  void LeaveOnly(const std::string& tool) const {
    for (const std::string each : {"qcmdrun", "arcconf", "hrconf_64"}) {
      if (each == tool) continue;
      RemoveControllers(each);
      SetAnswer(each + "/other",
                each == "qcmdrun" ? "Found 0 KVR Zentraxis controller(s)\n" : "Controllers found: 0\n");
    }
  }
  void RemoveController(const std::string& tool, const std::string& number) const {
    std::filesystem::remove_all(Zenx() / "answers" / tool / number);
  }

  std::string Answer(const std::string& name) const { return FileText(AnswerFile(name)); }
  void SetAnswer(const std::string& name, std::string_view text) const {
    folder_.Write(std::filesystem::relative(AnswerFile(name), folder_.Path()), text);
  }
  // Replaces the first occurrence of a text, which must exist.
  void Replace(const std::string& name, const std::string& from, const std::string& to) const {
    std::string text = Answer(name);
    SetAnswer(name, text.replace(text.find(from), from.size(), to));
  }

 private:
  std::filesystem::path Zenx() const { return folder_.Path() / "zenx"; }
  std::filesystem::path AnswerFile(const std::string& name) const { return Zenx() / "answers" / (name + ".txt"); }

  TemporaryFolder folder_;
};
