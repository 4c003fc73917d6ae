#include "console/BoundedWork.h"

#include <windows.h>

#include <objbase.h>

#include <exception>
#include <stdexcept>

#include "platform/UniqueHandle.h"

namespace console {
namespace {

struct Order {
  const std::function<void()>& work;
  std::exception_ptr failure;
};

DWORD WINAPI Do(void* parameter) {
  auto& order = *static_cast<Order*>(parameter);
  const bool initialized = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  try {
    order.work();
  } catch (...) {
    order.failure = std::current_exception();
  }
  if (initialized) CoUninitialize();
  return 0;
}

}  // namespace

bool FinishesWithin(std::uint32_t time, const std::function<void()>& work) {
  Order order{work, {}};
  const platform::UniqueKernelHandle thread(CreateThread(nullptr, 0, Do, &order, 0, nullptr));
  if (!thread) throw std::runtime_error("no thread");
  if (WaitForSingleObject(thread.Get(), time) != WAIT_OBJECT_0) return false;
  if (order.failure) std::rethrow_exception(order.failure);
  return true;
}

}  // namespace console
