#pragma once

#include <cstddef>
#include <map>
#include <string_view>
#include <tuple>
#include <vector>

#include "host/hxahost/proof/object_places.h"
#include "host/hxahost/schema/property_origins.h"

namespace hxahost {

// The source of a value.
enum class Evidence {
  kLine,     // lines of a raw text contain it
  kDiffers,  // the lines that it is read from contain another value: the tool has answered differently since
  kNoLine,   // no line of the object's raw text has its label
  kMade,     // it is composed, counted or fixed; the origin explains it
};

// The source of the value of one property.
struct Proof {
  std::string_view property;
  Evidence evidence = Evidence::kMade;
  std::size_t text = 0;                 // for kLine and kDiffers: the place of the raw text among the instances
  std::vector<std::size_t> lines = {};  // their places in it
  std::string_view origin = {};         // in words; "" if the lines explain everything
};

// Traces values to the raw texts of the same query. A line is searched as the parsers do, by its label and within the
// lines of the object: "State : Online" of one disk proves nothing for another.
class Proofs {
 public:
  // The instances must outlive it. The queried classes must include those of raw text.
  Proofs(const Machine& machine, const InstanceList& instances);
  Proofs(const Proofs&) = delete;
  Proofs& operator=(const Proofs&) = delete;

  // One for each property that has a value, in the order of publication.
  std::vector<Proof> Of(std::size_t instance);

 private:
  const std::vector<LabelSource>& LabelsFor(const KnownTool& tool, std::string_view className,
                                            std::string_view property);
  void Find(Proof& proof, std::size_t instance, std::string_view className, const std::string& value, bool isKey);

  const InstanceList& instances_;
  const std::vector<ToolText> texts_;
  const std::vector<std::vector<Place>> places_;
  std::map<std::tuple<const KnownTool*, std::string_view, std::string_view>, std::vector<LabelSource>> labels_;
};

}  // namespace hxahost
