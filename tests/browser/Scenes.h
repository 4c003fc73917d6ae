// What the browser fixture shows, by a word of its command line.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "Page.h"

namespace html {

// How the document's window answers the request for its document.
enum class Answering {
  kDocument,
  kHung,    // the whole program sleeps for ten seconds, each time
  kSilent,  // ten seconds late, each time; meanwhile everything else is answered
  kZero,    // with 0
  kJunk,    // with numbers that are no objects
  kSecond,  // with such a number first, with the document from then on
  kBare,    // with an object that offers only IUnknown and IHTMLDocument2
};

struct Scene {
  const wchar_t* documentClass = L"Internet Explorer_Server";
  bool hasLists = false;  // two windows on the document's: a combo box and a list of the page
  Answering answering = Answering::kDocument;
  std::unique_ptr<Page> page;
};

// Fills scene as the word says; false when there is no such word.
//
// fruit, kinds, lengths, frameset, unnamed, scrolled, chain=N, orphan     pages of Pages.h
// lists           the fruit, and on it windows of the classes of the page's own lists:
//                 "…_TridentCmboBx" at 220,210 and "…_TridentLstBox" at 220,240
// silverlight     the fruit in a window of that class
// hung, silent, zero, junk, second, bare         the fruit, answered as in Answering
// foreign         an inline frame whose document is refused
// refused         a frame set all of whose documents are refused
// circle          parents that form a circle
// selfframe       a frame that holds the document that it is in
// deep=N          frames nested N times
// huge            texts of five million characters
// failing         every member fails
// dies=MEMBER     the program ends in the first call of that member
bool BuildScene(const std::wstring& word, const std::wstring& value, Scene& scene);

}  // namespace html
