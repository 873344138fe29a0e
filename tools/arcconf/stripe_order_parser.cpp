#include "tools/arcconf/stripe_order_parser.h"

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/stripe_order.h"
#include "collect/tool_text.h"

namespace arcconf {

void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber,
                      std::string_view driveNumber) {
  order.ControllerNum = controllerNumber;
  if (!Contains(text.CurrentLine(), kStripeOrderLabel)) return;
  order.StripeOrder = text.ValueOfCurrentLine();
  // The tool wraps a list once; a third line is not part of it.
  UntilEndOfText([&] { ContinueList(text, order.StripeOrder); });
  order.CollectionID = StripeOrderId(order, driveNumber);
}

}  // namespace arcconf
