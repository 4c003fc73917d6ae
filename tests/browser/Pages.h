// The pages that the fixture shows. Tests compare with texts written by hand, so every page is
// complete in one place.
#pragma once

#include "PageData.h"

namespace html {

// A page without frames: a heading, a list in its box, an input, a link; 400 x 300 pixels.
DocumentData FruitPage();

// One element of every kind in rows of 20 pixels, see Row(): inputs of every type, elements with
// and without id, name, type, value and text, names that fill a column and more.
DocumentData KindsPage();

// Texts around a limit of 50 characters, one a row of 20 pixels: 50, 52 and 53 characters; 53 of
// which one line end makes 51; 60 in Japanese.
DocumentData LengthsPage();

// A frame set: "menu" at the left (0 to 100), "main" at the right, in it an inline frame "ad"
// without a name of its own. Each has a document of its own; 400 x 300 pixels.
DocumentData FrameSetPage();

// Two frames without id and name side by side, each 200 x 300; the left says 左, the right 右.
DocumentData UnnamedFramesPage();

// Inline frames three deep, each scrolled 30 pixels to the left and 40 upwards out of its parent's
// view. The innermost holds a paragraph.
DocumentData ScrolledFramesPage();

// A page with an inline frame "foreign" at 10,10 of 200 x 100 pixels.
DocumentData ForeignFramePage();

// A page of that many elements nested in each other, HTML and BODY among them, 400 x 300 pixels.
DocumentData ChainPage(int elements);

// Inline frames nested that many times; each document is 400 x 300 and full of its frame.
DocumentData NestedFramesPage(int frames);

// A paragraph with a text and markup of that many characters, and a body with the same.
DocumentData HugePage(std::size_t characters);

// A paragraph without a parentElement.
DocumentData OrphanPage();

// A row of KindsPage and LengthsPage: its top and bottom in the page.
inline constexpr LONG kRowHeight = 20;

}  // namespace html
