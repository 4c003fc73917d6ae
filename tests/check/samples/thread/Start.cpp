#include <windows.h>

HANDLE Start(LPTHREAD_START_ROUTINE routine) {
  return CreateThread(nullptr, 0, routine, nullptr, 0, nullptr);
}
