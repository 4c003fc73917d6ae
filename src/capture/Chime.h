// The sound that tells that a capture has ended by itself.
#pragma once

#include <string>

namespace capture {

// What playing it asks of Windows; tests put a recorder in its place. Folders are without a
// trailing backslash.
class ChimeCalls {
 public:
  ChimeCalls() = default;
  ChimeCalls(const ChimeCalls&) = delete;
  ChimeCalls& operator=(const ChimeCalls&) = delete;
  virtual ~ChimeCalls() = default;

  virtual std::wstring ProgramFolder();
  virtual std::wstring WindowsFolder();
  virtual bool IsFile(const std::wstring& path);
  virtual void Play(const std::wstring& path);  // returns when the sound is over
  virtual void Pump();
};

// Plays the file of that name beside the program, else the one that came with Windows, once to its
// end, and pumps. Where there is neither, nothing happens.
void PlayChime(const std::wstring& file, ChimeCalls& calls);

}  // namespace capture
