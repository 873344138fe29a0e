#include "collect/stripe_order.h"

#include "collect/tool_text.h"

bool ContinueList(CollectedData& text, std::string& list) {
  const std::string_view line = CollectedData::TrimLeft(text.NextLine());
  if (!BeginsWithDigit(line)) {
    text.StepBack();
    return false;
  }
  Join(list, " ", line);
  return true;
}

std::string StripeOrderId(const ArrayStripeOrder& order, std::string_view logicalDriveNumber) {
  std::string id = "ZentraxisCntrlr" + order.ControllerNum + "LogicalDrv";
  id.append(logicalDriveNumber).append(order.StripeOrder);
  return id;
}
