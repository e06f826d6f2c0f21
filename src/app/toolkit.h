/// The toolkit for drawing into files.
#pragma once

#include <memory>

class QGuiApplication;

namespace loftwing {

/// Keeps the toolkit running, without a display, for as long as it lives: fonts need it.
class Toolkit {
  public:
    /// Starts it only where it is `needed`, since that takes a moment.
    explicit Toolkit(bool needed);
    Toolkit(const Toolkit &) = delete;
    Toolkit &operator=(const Toolkit &) = delete;
    ~Toolkit();

  private:
    std::unique_ptr<QGuiApplication> application_;
};

} // namespace loftwing
