// The system's folders as they are.
#pragma once

#include <windows.h>

namespace gui {

// A 32-bit process sees the 32-bit versions of the system's programs, and some of those only start
// the real program and wait. While this lives it sees the real ones. Does nothing on a 32-bit
// system.
class RealSystemFolder {
 public:
  RealSystemFolder() { Wow64DisableWow64FsRedirection(&before_); }
  ~RealSystemFolder() { Wow64RevertWow64FsRedirection(before_); }
  RealSystemFolder(const RealSystemFolder&) = delete;
  RealSystemFolder& operator=(const RealSystemFolder&) = delete;

 private:
  void* before_ = nullptr;
};

}  // namespace gui
