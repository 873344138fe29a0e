#include "plugin/host_interface/assertion_failed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/assert.hpp>
#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"

namespace {

using namespace NKVRHXA20;
using testing::AllOf;
using testing::HasSubstr;
using testing::ThrowsMessage;

TEST(AssertionFailed, FollowingANullPointerIsABrokenInvariantWithTheTextPxIsNotNull) {
  const boost::shared_ptr<ICIMNamespace> none;
  EXPECT_THAT([&] { none->GetClass("", {}); }, ThrowsMessage<TBrokenInvariant>(HasSubstr("px != 0")));
  EXPECT_THAT([&] { static_cast<void>(*none); }, ThrowsMessage<TBrokenInvariant>(HasSubstr("px != 0")));
}

TEST(AssertionFailed, NamesTheConditionAndItsPlace) {
  const bool isSorted = false;
  EXPECT_THAT([&] { BOOST_ASSERT(isSorted); },
              ThrowsMessage<TBrokenInvariant>(AllOf(HasSubstr("isSorted"), HasSubstr("assertion_failed_test.cpp:"))));
  EXPECT_THAT([&] { BOOST_ASSERT_MSG(isSorted, "by name"); },
              ThrowsMessage<TBrokenInvariant>(HasSubstr("isSorted (by name)")));
}

TEST(AssertionFailed, IsNotTheExceptionOfAService) {
  EXPECT_THROW(ReportBrokenInvariant("x", "f", "file", 1), std::logic_error);
}

}  // namespace
