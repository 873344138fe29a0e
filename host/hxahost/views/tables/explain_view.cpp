#include "host/hxahost/views/tables/explain_view.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/terminal/wrap.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

constexpr std::size_t kAnyWidth = kWidestLayout;

void WriteLine(std::ostream& out, const Layout& layout, const std::string& text) {
  out << CutToWidth(text, layout.width) << '\n';
}

// People count lines from 1.
std::string LineNumbers(const Proof& proof) {
  std::string numbers;
  for (const std::size_t line : proof.lines) numbers += (numbers.empty() ? "" : ", ") + std::to_string(line + 1);
  return numbers;
}

// The value in the lines, if it differs.
std::string DifferentText(const InstanceList& instances, const Proof& proof) {
  if (proof.evidence != Evidence::kDiffers) return "";
  const std::vector<std::string> lines = RawElements(*instances[proof.text], "RawResults");
  std::string said;
  for (const std::size_t line : proof.lines) said += (said.empty() ? "" : " / ") + WithSingleBlanks(lines[line]);
  return Printable(said);
}

void WriteText(std::ostream& out, const Layout& layout, const InstanceList& instances,
               const TPublishedInstance& instance, const std::vector<Proof>& proofs, std::size_t text) {
  Table table{
      {{"Property", kAnyWidth, kAnyWidth},
       {"Value", kAnyWidth},
       {"Line", kAnyWidth, kAnyWidth},
       {"but it says", kAnyWidth}},
      {                           }
  };
  for (const Proof& proof : proofs) {
    if (proof.lines.empty() || proof.text != text) continue;
    table.rows.push_back({std::string(proof.property), ShownText(instance, proof.property), LineNumbers(proof),
                          DifferentText(instances, proof)});
  }
  out << '\n';
  WriteLine(out, layout, ShownText(*instances[text], "Command"));
  WriteTable(out, layout, table);
}

void WriteWrapped(std::ostream& out, const Layout& layout, const std::string& indent, std::string_view text) {
  for (const std::string& line : WrapWords(text, layout.width - indent.size())) WriteLine(out, layout, indent + line);
}

void WriteWithoutLine(std::ostream& out, const Layout& layout, const TPublishedInstance& instance,
                      const std::vector<Proof>& proofs, Evidence evidence, const std::string& heading) {
  bool isFirst = true;
  for (const Proof& proof : proofs) {
    if (proof.evidence != evidence) continue;
    if (isFirst) out << '\n' << heading << '\n';
    isFirst = false;
    WriteWrapped(out, layout, "  ", std::string(proof.property) + ": " + ShownText(instance, proof.property));
    if (!proof.origin.empty()) WriteWrapped(out, layout, "      ", proof.origin);
  }
}

}  // namespace

void WriteExplanation(std::ostream& out, const Layout& layout, const InstanceList& instances, const NamedObject& named,
                      const std::vector<Proof>& proofs) {
  const TPublishedInstance& instance = *instances[named.object->instance];
  const std::string name = Printable(named.object->name);
  WriteLine(out, layout, Printable(named.handle) + (name.empty() ? "" : ": " + name));
  std::vector<std::size_t> texts;
  for (const Proof& proof : proofs) {
    if (!proof.lines.empty() && std::ranges::find(texts, proof.text) == texts.end()) texts.push_back(proof.text);
  }
  std::ranges::sort(texts);
  for (const std::size_t text : texts) WriteText(out, layout, instances, instance, proofs, text);
  WriteWithoutLine(out, layout, instance, proofs, Evidence::kNoLine,
                   "In no line of the object: the tool answered differently when asked again");
  WriteWithoutLine(out, layout, instance, proofs, Evidence::kMade, "Composed, counted or fixed");
}

}  // namespace hxahost
