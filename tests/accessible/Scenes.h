// What the accessible fixture shows: trees of accessible objects, well-behaved and hostile.
#pragma once

#include <windows.h>

#include <deque>
#include <string>

#include "AccessibleNode.h"

namespace accessible {

struct Scene {
  const wchar_t* windowClass = L"FixtureAccessible";
  std::deque<Node> nodes;  // the first is the object of the window
};

// Fills scene as the word says, in a window at place (screen pixels: left, top, width,
// height); false when there is no such word.
//
// fruit         a group with a list of simple elements and a button, all kinds of members
// tree=N        N items of a tree view, simple elements at the levels 0, 1 and 2
// objects=N     N items that are objects
// rows=N        N items of a list view
// commas        items of a list view whose names hold a tab, a comma and quotation marks
// cycle         parents that form a circle
// endless       every child exists and has siblings
// claims        two thousand million children that do not exist
// huge          a name of five million characters
// codes         members that fail, each with a different code
// roleless      a role that cannot be read
// overflow      a right edge beyond 32 bits
// dies          the process ends in the middle of the third name
bool BuildScene(const std::wstring& word, const std::wstring& value, const RECT& place,
                Scene& scene);

}  // namespace accessible
