#include "app/key_map.h"

namespace vireo {

KeyCommand CommandForKey(int virtual_key, ShiftKey shift) {
  switch (virtual_key) {
    case vk::kSpace:
      return shift == ShiftKey::kDown ? KeyCommand::kPreviousPage : KeyCommand::kNextPage;
    case vk::kRight:
    case vk::kPageDown:
    case 'M':
      return KeyCommand::kNextPage;
    case vk::kLeft:
    case vk::kPageUp:
    case 'Z':
      return KeyCommand::kPreviousPage;
    case '1':
      return KeyCommand::kSinglePageMode;
    case '2':
      return KeyCommand::kTwoPageMode;
    case 'G':
      return KeyCommand::kGotoPage;
    case 'B':
      return KeyCommand::kToggleBar;
    case 'S':
      return KeyCommand::kEnterSearchTerm;
    case 'N':
      return KeyCommand::kFindNext;
    case 'P':
      return KeyCommand::kFindPrevious;
    case 'L':
      return KeyCommand::kLoad;
    case 'Q':
      return KeyCommand::kQuit;
    case vk::kF1:
      return KeyCommand::kHelp;
    case vk::kHome:
      return KeyCommand::kFirstSpread;
    case vk::kEnd:
      return KeyCommand::kLastSpread;
    case vk::kF10:
    case vk::kMenu:
      return KeyCommand::kOptionsMenu;
    default:
      return KeyCommand::kNone;
  }
}

}  // namespace vireo
