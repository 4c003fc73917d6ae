// Everything that one reading finds out, as plain facts for the writers.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "accessibility/AccessibleReport.h"
#include "accessibility/AccessibleRows.h"
#include "browser/PageFacts.h"
#include "console/ItemTable.h"
#include "extract/TextReading.h"
#include "report/ProcessFacts.h"
#include "report/WindowInformation.h"

namespace console {

struct ItemFacts {
  std::wstring method;
  bool complete = true;
  std::vector<Row> rows;
  Row headers;  // the captions of the columns; empty when there are none
};

struct ObjectRows {
  std::vector<MyAccessible::RowFacts> rows;
  bool complete = true;
};

struct ObjectFacts {
  MyAccessible::AccessibleFacts members;
  std::wstring type;
  ObjectRows ancestors;  // the nearest first
  ObjectRows children;
};

struct PageFound {
  MyInternetexplore::PageFacts facts;
  MyInternetexplore::PageTexts texts;
};

// A window without what is around it.
struct ReadingFacts {
  report::WindowInformation window;
  bool hung = false;
  extract::TextReading text;
  std::optional<ItemFacts> items;  // nothing when the control has none
};

struct Facts {
  std::optional<POINT> point;  // screen pixels; nothing when a window was named
  ReadingFacts reading;
  report::ProcessFacts process;
  bool outOfReach = false;  // its program runs as administrator, and this one does not
  bool gone = false;        // the window is no more
  std::optional<ObjectFacts> object;
  std::optional<PageFound> page;
  std::wstring status;
  std::optional<std::vector<ReadingFacts>> descendants;  // when they were asked for
};

// The exit codes of the program.
enum class Outcome {
  kRead = 0,
  kNothingThere = 1,
  kWrongArguments = 2,
  kNoSuchWindow = 3,
  kNotAllowed = 4,
  kNoAnswer = 5,
};

// Whether the window, its page or one of the descendants gave a text or an item.
bool HoldsText(const Facts& facts);

Outcome OutcomeOf(const Facts& facts);

}  // namespace console
