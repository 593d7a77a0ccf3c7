#include "app/key_map.h"

#include <gtest/gtest.h>

namespace vireo {
namespace {

TEST(KeyMap, EveryKeyOfTheMapAndNothingElse) {
  struct Case {
    int key;
    ShiftKey shift;
    KeyCommand command;
  } cases[] = {
      {vk::kSpace, ShiftKey::kDown, KeyCommand::kPreviousPage},
      {vk::kSpace, ShiftKey::kUp, KeyCommand::kNextPage},
      {vk::kRight, ShiftKey::kUp, KeyCommand::kNextPage},
      {'M', ShiftKey::kUp, KeyCommand::kNextPage},
      {vk::kLeft, ShiftKey::kUp, KeyCommand::kPreviousPage},
      {'Z', ShiftKey::kDown, KeyCommand::kPreviousPage},
      {'1', ShiftKey::kUp, KeyCommand::kSinglePageMode},
      {'2', ShiftKey::kUp, KeyCommand::kTwoPageMode},
      {'G', ShiftKey::kUp, KeyCommand::kGotoPage},
      {'B', ShiftKey::kUp, KeyCommand::kToggleBar},
      {'S', ShiftKey::kUp, KeyCommand::kEnterSearchTerm},
      {'N', ShiftKey::kUp, KeyCommand::kFindNext},
      {'P', ShiftKey::kUp, KeyCommand::kFindPrevious},
      {'L', ShiftKey::kUp, KeyCommand::kLoad},
      {'Q', ShiftKey::kUp, KeyCommand::kQuit},
      {vk::kF1, ShiftKey::kUp, KeyCommand::kHelp},
  };
  for (const Case& c : cases) EXPECT_EQ(CommandForKey(c.key, c.shift), c.command) << c.key;
  int mapped = 0;
  for (int key = 0; key < 256; ++key) {
    if (CommandForKey(key, ShiftKey::kUp) != KeyCommand::kNone) ++mapped;
  }
  EXPECT_EQ(mapped, 15) << "Space, Right, M, Left, Z, 1, 2, G, B, S, N, P, L, Q, F1 only";
}

}  // namespace
}  // namespace vireo
