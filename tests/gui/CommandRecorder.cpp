// Replaces a program that the tested one starts: writes its command line (UTF-8, one line) into the
// file "command.txt" in the folder it is started in, and ends.
#include <windows.h>

#include <cstdio>
#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  const std::wstring line = GetCommandLineW();
  const int length = static_cast<int>(line.size());
  std::string bytes(line.size() * 3, '\0');
  const int count = WideCharToMultiByte(CP_UTF8, 0, line.data(), length, bytes.data(),
                                        static_cast<int>(bytes.size()), nullptr, nullptr);
  std::FILE* const file = std::fopen("command.txt", "wb");
  if (file == nullptr) return 1;
  std::fwrite(bytes.data(), 1, static_cast<std::size_t>(count), file);
  std::fputc('\n', file);
  return std::fclose(file);
}
