/// The world outside for pictures of windows and sheets.
#pragma once

#include "programme/console_platform.h"

#include <QImage>

#include <memory>
#include <string>

namespace loftwing {

/// Answers with folders of its own, so that no alert comes up, and prints on a picture.
class PicturePlatform : public ConsolePlatform {
  public:
    explicit PicturePlatform(std::string folder);
    std::string StoredValue(const std::string &, const std::string &) override { return folder_; }
    std::string PrinterName() override { return "Office"; }
    BoxAnswer Show(const MessageBox &box) override;
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &question) override;

    /// The first sheet of what was printed last.
    const QImage &FirstSheet() const { return sheet_; }

  private:
    std::string folder_;
    QImage sheet_;
};

} // namespace loftwing
