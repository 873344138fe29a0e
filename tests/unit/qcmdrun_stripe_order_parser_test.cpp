#include "tools/qcmdrun/stripe_order_parser.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace {

struct Block {
  ArrayStripeOrder order;
  std::string currentLine;  // after the block
};

Block Read(const std::string& lines) {
  CollectedData text(nullptr, lines);
  ArrayStripeOrder order(nullptr);
  qcmdrun::ParseStripeOrder(order, text, "3");
  return {order, std::string(text.CurrentLine())};
}

TEST(QcmdrunStripeOrderParser, NamesTheCollectionAfterControllerAndArray) {
  const ArrayStripeOrder order = Read("   Array B stripe order (Channel/SCSI ID) : 1,3 1,4\r\nnext\r\n").order;
  EXPECT_EQ(order.ControllerNum, "3");
  EXPECT_EQ(order.Array, "B");
  EXPECT_EQ(order.CollectionID, "Zentraxis3ArrayB");
  EXPECT_EQ(order.StripeOrder, " 1,3 1,4\r\n");
  EXPECT_TRUE(order.Members.empty());
}

TEST(QcmdrunStripeOrderParser, AppendsASecondLineThatBeginsWithADigit) {
  const Block block = Read("A stripe order (Channel/SCSI ID) : 1,0 1,1 \r\n    \t 2,0 2,1\r\nnext\r\n");
  EXPECT_EQ(block.order.StripeOrder, " 1,0 1,1 2,0 2,1\r\n");
  EXPECT_EQ(block.order.CollectionID, "Zentraxis3ArrayA");
  EXPECT_EQ(block.currentLine, "    \t 2,0 2,1\r\n");
}

TEST(QcmdrunStripeOrderParser, LeavesASecondLineThatBeginsWithAnythingElse) {
  const Block block = Read("A stripe order (Channel/SCSI ID) : 1,0\r\n   Array B\r\n");
  EXPECT_EQ(block.order.StripeOrder, " 1,0\r\n");
  EXPECT_EQ(block.currentLine, "A stripe order (Channel/SCSI ID) : 1,0\r\n");
}

TEST(QcmdrunStripeOrderParser, LeavesAThirdLine) {
  const Block block = Read("A stripe order (Channel/SCSI ID) : 1,0\r\n 2,0\r\n 3,0\r\n");
  EXPECT_EQ(block.order.StripeOrder, " 1,0 2,0\r\n");
  EXPECT_EQ(block.currentLine, " 2,0\r\n");
}

TEST(QcmdrunStripeOrderParser, HasAnEmptyOrderWhereTheLineHasNoColon) {
  EXPECT_EQ(Read("A stripe order (Channel/SCSI ID)\r\nnext\r\n").order.StripeOrder, "");
}

TEST(QcmdrunStripeOrderParser, StopsOnALineWithoutTheLabel) {
  const Block block = Read("Array A stripe order : 1,0\r\nnext\r\n");
  EXPECT_EQ(block.order.ControllerNum, "3");
  EXPECT_EQ(block.order.CollectionID, "");
  EXPECT_EQ(block.order.StripeOrder, "");
  EXPECT_EQ(block.currentLine, "Array A stripe order : 1,0\r\n");
}

TEST(QcmdrunStripeOrderParser, FailsOnALineThatBeginsWithTheLabel) {
  EXPECT_THROW(Read(" stripe order (Channel/SCSI ID) : 1,0\r\nnext\r\n"), std::out_of_range);
}

TEST(QcmdrunStripeOrderParser, FailsWhereTheTextEndsWithTheLine) {
  EXPECT_THROW(Read("A stripe order (Channel/SCSI ID) : 1,0\r\n"), std::out_of_range);
}

}  // namespace
