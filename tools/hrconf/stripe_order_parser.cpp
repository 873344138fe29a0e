#include "tools/hrconf/stripe_order_parser.h"

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/stripe_order.h"
#include "collect/tool_text.h"

namespace hrconf {

void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber,
                      std::string_view driveNumber) {
  order.ControllerNum = controllerNumber;
  if (Contains(text.CurrentLine(), kStripeOrderLabel)) order.StripeOrder = text.ValueOfCurrentLine();
  UntilEndOfText([&] {
    while (ContinueList(text, order.StripeOrder)) {
    }
  });
  order.CollectionID = StripeOrderId(order, driveNumber);
}

}  // namespace hrconf
