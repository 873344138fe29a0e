#include "collect/stripe_order.h"

#include <fmt/core.h>

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
  return fmt::format("ZentraxisCntrlr{}LogicalDrv{}{}", order.ControllerNum, logicalDriveNumber, order.StripeOrder);
}
