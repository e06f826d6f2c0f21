#include "platform/qt_lock.h"

#include "platform/qt_text.h"

#include <QLockFile>

namespace loftwing {

namespace {

class HeldFile : public FileLock {
  public:
    explicit HeldFile(const std::string &path) : file_(Q(path)) {
        file_.setStaleLockTime(0); // a window may stay open for weeks
    }
    bool Take() { return file_.tryLock(0); }

  private:
    QLockFile file_; // lets go when it goes
};

} // namespace

std::unique_ptr<FileLock> HoldFile(const std::string &path) {
    auto held = std::make_unique<HeldFile>(path);
    return held->Take() ? std::move(held) : nullptr;
}

} // namespace loftwing
