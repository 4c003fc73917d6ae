// Shell services: special folders, the program's own folder, links and sounds.
#pragma once

#include <string>

namespace API_Shell {

// Shell folder identifiers, the CSIDL_ constants of the Windows documentation.
constexpr unsigned char kDesktopFolder = 16;
constexpr unsigned char kWindowsFolder = 36;

// The path of a special folder, without a trailing backslash; empty when the query fails.
std::wstring FolderPath(unsigned char folderId);

// The folder that holds the program file, without a trailing backslash; a drive root is "C:".
std::wstring ProgramFolder();

// path as an absolute path against the folder base; an empty base means the program's folder. A
// path in double quotes loses them; a result that contains a blank gets them. A path with a leading
// quote only is reported in a message box titled "AbsolutePath" and returned unchanged.
std::wstring AbsolutePath(const std::wstring& path, const std::wstring& base);

// "explorer.exe " followed by target, without quotes. Odd, and stays: docs/ODDITIES.md.
std::wstring ExplorerCommand(const std::wstring& target);

// Starts ExplorerCommand(target) in a normal window and does not wait. A failure is
// not reported.
void OpenWithExplorer(const std::wstring& target);

// The sound call's flags: SND_SYNC (0), or SND_LOOP (8) when repeat is set.
unsigned SoundFlags(bool repeat);

// Plays a wave file with these flags; without repeat it returns when the sound has ended. Returns
// false when the file could not be played.
bool PlaySoundFile(const std::wstring& path, bool repeat);

}  // namespace API_Shell
