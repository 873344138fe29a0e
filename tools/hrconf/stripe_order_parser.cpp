#include "tools/hrconf/stripe_order_parser.h"

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/stripe_order.h"

namespace hrconf {

void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber,
                      std::string_view driveNumber) {
  order.ControllerNum = controllerNumber;
  if (Contains(text.CurrentLine(), "Stripe order (Channel,Device)")) order.StripeOrder = text.ValueOfCurrentLine();
  UntilEndOfText([&] {
    while (ContinueList(text, order.StripeOrder)) {
    }
  });
  order.CollectionID = StripeOrderId(order, driveNumber);
}

}  // namespace hrconf
