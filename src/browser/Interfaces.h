// The browser's objects, as the rooms of this folder hold them.
#pragma once

#include <windows.h>

#include <mshtml.h>
#include <wrl/client.h>

namespace MyInternetexplore {

using DocumentPtr = Microsoft::WRL::ComPtr<IHTMLDocument2>;
using ElementPtr = Microsoft::WRL::ComPtr<IHTMLElement>;
using WindowPtr = Microsoft::WRL::ComPtr<IHTMLWindow2>;

// No descent and no walk goes further: pages can claim to be nested without end.
constexpr int kMostLevels = 256;

}  // namespace MyInternetexplore
