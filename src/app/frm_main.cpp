#include "app/frm_main.h"

namespace vireo {

frmMain::frmMain(MainWindowView& view, PageBuffers& buffers, UserInteraction& user,
                 MessagePump& pump, ProgramLocation location)
    : context_(view, buffers, user, pump, std::move(location)),
      spread_(context_),
      session_(context_, spread_),
      loader_(context_, spread_, session_),
      search_(context_, spread_, session_),
      view_commands_(context_, spread_, session_),
      preferences_(context_, spread_),
      languages_(context_, spread_),
      lifecycle_(context_, spread_, session_, loader_, preferences_, languages_),
      services_(context_, spread_, session_),
      commands_(context_, spread_, session_, loader_, search_, view_commands_, preferences_,
                lifecycle_, services_.read_aloud()) {}

}  // namespace vireo
