// What a report reads of a page, as plain texts.
#pragma once

#include <string>
#include <vector>

namespace MyInternetexplore {

// One row of the element table.
struct ElementFacts {
  std::wstring tag;  // in upper case
  std::wstring type;
  std::wstring idOrName;
  std::wstring value;
  std::wstring text;  // the start of the displayed text, without CR LF
};

// An element and everything around it, up to the root of the topmost page.
struct PageFacts {
  std::wstring url;                 // of the window's own document
  std::wstring framePath;           // the frames around the element, the outermost first: "a/b"
  std::vector<ElementFacts> chain;  // the outermost first; empty when there is no element
  bool interrupted = false;         // the outer elements are missing
};

struct PageTexts {
  std::wstring displayed;
  std::wstring markup;
};

}  // namespace MyInternetexplore
