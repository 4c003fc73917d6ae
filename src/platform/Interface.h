// The base of every interface of this program. Tests replace an interface by a recorder. Each
// stands for another system: the screen, Windows, other programs, their memory, the browser.
#pragma once

namespace platform {

class Interface {
 public:
  Interface(const Interface&) = delete;
  Interface& operator=(const Interface&) = delete;
  virtual ~Interface() = default;

 protected:
  Interface() = default;
};

}  // namespace platform
