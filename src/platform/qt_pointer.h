/// The mouse pointer of the whole program.
#pragma once

namespace loftwing {

/// Shows the busy pointer over all windows. Once is enough and more does nothing more.
void ShowBusyPointer();
/// Shows each window's own pointer again, however often the busy one was asked for.
void ShowNormalPointer();

/// Puts the busy pointer aside while the user is asked something. It comes back at the end unless
/// ShowNormalPointer() was called meanwhile.
class PointerPause {
  public:
    PointerPause();
    PointerPause(const PointerPause &) = delete;
    PointerPause &operator=(const PointerPause &) = delete;
    ~PointerPause();

  private:
    bool paused_;
};

} // namespace loftwing
