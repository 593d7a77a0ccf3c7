#include "support/error_trap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <new>

#include "support/checked_int16.h"
#include "support/logging.h"

namespace vireo {
namespace {

class ErrorTrapTest : public testing::Test {
 protected:
  void SetUp() override { ClearActions(); }
  const std::string& LastEntry() const { return Actions().text[Actions().position]; }
};

TEST_F(ErrorTrapTest, RecordsDescriptionProcedureNumberAndModule) {
  bool after_error = false;
  const bool finished = Trap("sub readsettings", "frmMain", [&] {
    throw RuntimeError(ErrorNumber::kTypeMismatch);
    after_error = true;  // never reached: the error leaves the body
  });
  EXPECT_FALSE(finished);
  EXPECT_FALSE(after_error);
  EXPECT_EQ(LastEntry(), "Type mismatch in sub readsettings(13) of module frmMain");
}

TEST_F(ErrorTrapTest, MapsForeignExceptionsToClassicNumbers) {
  Trap("sub a", "m", [] { throw std::bad_alloc(); });
  EXPECT_EQ(LastEntry(), "Out of memory in sub a(7) of module m");
  Trap("sub b", "m", [] { throw std::out_of_range("x"); });
  EXPECT_EQ(LastEntry(), "Subscript out of range in sub b(9) of module m");
  Trap("sub c", "m", [] { throw 42; });
  EXPECT_EQ(LastEntry(), "Invalid procedure call or argument in sub c(5) of module m");
}

TEST_F(ErrorTrapTest, ABodyWithoutErrorRecordsNothing) {
  EXPECT_TRUE(Trap("sub a", "m", [] {}));
  EXPECT_EQ(Actions().position, 0);
}

TEST(Int16, OverflowRaisesError6) {
  Int16 count = 32766;
  ++count;
  EXPECT_EQ(count, 32767);
  EXPECT_THROW(++count, RuntimeError);
  try {
    Int16 low = -32768;
    low -= 1;
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 6);
    EXPECT_EQ(error.description(), "Overflow");
  }
}

TEST(Int16, ConvertsDoublesToNearestWithTiesToEven) {
  EXPECT_EQ(Int16::FromDouble(10.6), 11);
  EXPECT_EQ(Int16::FromDouble(10.4), 10);
  EXPECT_EQ(Int16::FromDouble(2.5), 2);
  EXPECT_EQ(Int16::FromDouble(3.5), 4);
  EXPECT_EQ(Int16::FromDouble(-2.5), -2);
  EXPECT_THROW(Int16::FromDouble(32767.6), RuntimeError);
  EXPECT_THROW(Int16::FromDouble(std::nan("")), RuntimeError);
}

}  // namespace
}  // namespace vireo
