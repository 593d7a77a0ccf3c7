#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "sample_text.h"
#include "e2e/program_runner.h"

namespace vireo {
namespace {

long long Milestone(const std::string& err, const std::string& name) {
  const size_t at = err.find("[timing] " + name + " ");
  if (at == std::string::npos) return -1;
  return std::stoll(err.substr(at + 10 + name.size()));
}

TEST(FirstSpread, IsOnScreenBeforeA5MegabyteBookIsPaginated) {
  test::ProgramFolder program;
  std::mt19937 random(5);
  const auto made = test::MakeBook(program, "Big", samples::ProseLikeText(random, 5'000'000));
  ASSERT_EQ(made.status, 0) << made.err;
  const auto run = test::StartAndQuit(program, "Big", {"VIREO_TIMING=1"}, 600);
  ASSERT_EQ(run.status, 0) << run.err;
  const long long first = Milestone(run.err, "first spread");
  const long long finished = Milestone(run.err, "pagination finished");
  ASSERT_GT(first, 0) << run.err;
  ASSERT_GT(finished, 0) << run.err;
  EXPECT_LE(first, finished);
  EXPECT_LT(run.err.find("first spread"), run.err.find("pagination finished"));
}

}  // namespace
}  // namespace vireo
