#include "support/error_trap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <new>

#include "support/checked_int16.h"
#include "support/logging.h"

namespace vireo {
namespace {

// The logged form itself is checked wherever a procedure's error is logged.
TEST(Trap, MapsForeignExceptionsToClassicNumbersAndRecordsNothingWithoutError) {
  ClearActions();
  EXPECT_TRUE(Trap("sub a", "m", [] {}));
  EXPECT_EQ(Actions().position, 0);
  EXPECT_FALSE(Trap("sub a", "m", [] { throw std::bad_alloc(); }));
  Trap("sub b", "m", [] { throw std::out_of_range("x"); });
  Trap("sub c", "m", [] { throw 42; });
  EXPECT_EQ(Actions().text[1], "Out of memory in sub a(7) of module m");
  EXPECT_EQ(Actions().text[2], "Subscript out of range in sub b(9) of module m");
  EXPECT_EQ(Actions().text[3], "Invalid procedure call or argument in sub c(5) of module m");
}

TEST(Int16, OverflowRaisesError6AndDoublesRoundToNearestWithTiesToEven) {
  Int16 count = 32767;
  EXPECT_THROW(++count, RuntimeError);
  ClearActions();
  Trap("sub low", "m", [] {
    Int16 low = -32768;
    low -= 1;
  });
  EXPECT_EQ(Actions().text[1], "Overflow in sub low(6) of module m");
  EXPECT_EQ(Int16::FromDouble(2.5), 2);
  EXPECT_EQ(Int16::FromDouble(3.5), 4);
  EXPECT_EQ(Int16::FromDouble(-2.5), -2);
  EXPECT_THROW(Int16::FromDouble(32767.6), RuntimeError);
  EXPECT_THROW(Int16::FromDouble(std::nan("")), RuntimeError);
}

}  // namespace
}  // namespace vireo
