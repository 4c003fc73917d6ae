// The description of the browser's interfaces.
#pragma once

#include <windows.h>

#include <oaidl.h>
#include <wrl/client.h>

namespace MyInternetexplore {

// The system carries calls to pages of other programs by this description. Unless somebody holds
// it, it is loaded anew for the objects of every reading, which takes far longer than the reading.
class InterfaceDescription {
 public:
  // Holds it from now on. Where it is not registered nothing is held, and nobody is told.
  void Hold();

 private:
  Microsoft::WRL::ComPtr<ITypeLib> library_;
  bool asked_ = false;
};

}  // namespace MyInternetexplore
