#pragma once

namespace vireo {

// What a released key asks the main window to do.
enum class KeyCommand {
  kNone,
  kPreviousPage,
  kNextPage,
  kSinglePageMode,   // "1"
  kTwoPageMode,      // "2"
  kGotoPage,         // "G"
  kToggleBar,        // "B"
  kEnterSearchTerm,  // "S"
  kFindNext,         // "N"
  kFindPrevious,     // "P"
  kLoad,             // "L"
  kQuit,             // "Q"
  kHelp,             // F1
  kFirstSpread,      // Home
  kLastSpread,       // End
  kOptionsMenu,      // F10, the Menu key
};

// Virtual-key codes of the window system, as the key map names them.
namespace vk {
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kRight = 39;
inline constexpr int kMenu = 93;
inline constexpr int kF1 = 112;
inline constexpr int kF10 = 121;
}  // namespace vk

enum class ShiftKey { kUp, kDown };

// The reader's key map, acting on key release: Shift+Space goes back; Space,
// Right and "M" go forward; Left and "Z" go back; the letters and digits of
// the commands; anything else does nothing. Beyond these, the keys readers
// reach for: PageDown forward and PageUp back, Home and End to the first and
// last spread, F10 and the Menu key open the options menu.
KeyCommand CommandForKey(int virtual_key, ShiftKey shift);

}  // namespace vireo
