// The type library that describes the browser's interfaces.
#pragma once

#include <windows.h>

#include <oaidl.h>
#include <wrl/client.h>

namespace MyInternetexplore {

// The system needs this description to pass calls on to pages of other programs. Unless it is held,
// it is loaded again for every report, which takes far longer than the report.
class InterfaceDescription {
 public:
  // Loads and holds it. When it is not registered, nothing is held and nothing is reported.
  void Hold();

 private:
  Microsoft::WRL::ComPtr<ITypeLib> library_;
  bool asked_ = false;
};

}  // namespace MyInternetexplore
