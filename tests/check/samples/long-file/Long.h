// Six
// lines
// are
// more
// than
// five.
