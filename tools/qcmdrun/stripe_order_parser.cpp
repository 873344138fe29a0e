#include "tools/qcmdrun/stripe_order_parser.h"

#include <fmt/core.h>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "collect/stripe_order.h"
#include "tools/qcmdrun/labels.h"

namespace qcmdrun {

// "Array A stripe order (Channel/SCSI ID) : 1,0  1,1  1,2  1,3"
// "                                         2,0  2,1"
// A list never takes more than two lines.
void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber) {
  order.ControllerNum = controllerNumber;
  const std::string_view line = text.CurrentLine();
  const std::size_t label = line.find(kArrayLabel);
  if (label == line.npos) return;
  order.Array = line.substr(label - 1, 1);
  order.CollectionID = fmt::format("Zentraxis{}Array{}", order.ControllerNum, order.Array);
  order.StripeOrder = text.ValueOfCurrentLine();
  ContinueList(text, order.StripeOrder);
}

}  // namespace qcmdrun
