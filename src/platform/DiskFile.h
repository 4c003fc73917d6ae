// Files of bytes, as this program reads and writes them. (The standard library's file streams and
// paths would bring in all of its locales and double the size of the program.)
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "platform/UniqueHandle.h"

namespace platform {

bool IsDirectory(const std::wstring& path);

// Whether a directory listing shows a file with these attributes: it is no folder, not hidden and
// no system file.
bool IsListed(DWORD attributes);

// Whether a directory listing of path finds such a file. A path with "*" or "?" finds what it
// matches; a path that ends with a backslash names no file.
bool IsNormalFile(const std::wstring& path);

// The whole file; empty when there is none or it cannot be opened or read.
std::string ReadWholeFile(const std::wstring& path);

// A file that is written from its start, replacing what was there.
class NewFile {
 public:
  explicit NewFile(const std::wstring& path);

  // Whether all bytes were written. After a failure nothing more is written.
  bool Write(std::string_view bytes);

 private:
  UniqueKernelHandle handle_;  // empty when the file could not be created
};

}  // namespace platform
