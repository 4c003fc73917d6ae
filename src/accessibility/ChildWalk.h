// The children of an accessible object, one after the other.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <cstdint>
#include <vector>

namespace MyAccessible {

class ChildWalk {
 public:
  // wanted: how many children the caller needs. That many are fetched at once, up to a limit; more
  // can be read. object must outlive the walk.
  ChildWalk(IAccessible* object, std::int32_t wanted);
  ~ChildWalk();
  ChildWalk(const ChildWalk&) = delete;
  ChildWalk& operator=(const ChildWalk&) = delete;

  // The next child, an object or the number of a simple element; valid until the next call. Null
  // after the last.
  const VARIANT* Next();

 private:
  void Fetch();
  void Clear() noexcept;

  IAccessible* object_;
  long count_ = 0;  // as the object says, which may be wrong
  long fetched_ = 0;
  std::vector<VARIANT> children_;  // those fetched last, owned
  std::size_t obtained_ = 0;
  std::size_t next_ = 0;
};

}  // namespace MyAccessible
