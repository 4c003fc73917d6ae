// Smart pointers to the browser's objects.
#pragma once

#include <windows.h>

#include <mshtml.h>
#include <wrl/client.h>

namespace MyInternetexplore {

using DocumentPtr = Microsoft::WRL::ComPtr<IHTMLDocument2>;
using ElementPtr = Microsoft::WRL::ComPtr<IHTMLElement>;
using WindowPtr = Microsoft::WRL::ComPtr<IHTMLWindow2>;

// The limit of every descent and walk: pages can claim to be nested without end.
constexpr int kMostLevels = 256;

}  // namespace MyInternetexplore
