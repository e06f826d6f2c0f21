/// PDF files as another program reads them.
#pragma once

#include <QPolygonF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace loftwing {

/// Runs a program and gives what it writes to standard output; fails the test when the program
/// isn't there or refuses.
QByteArray OutputOf(const QString &program, const QStringList &arguments);

/// A PDF that other programs look at.
class ReadPdf {
  public:
    explicit ReadPdf(QString path) : path_(std::move(path)) {}

    /// Sizes of all pages in points.
    std::vector<QSizeF> PageSizes() const;
    /// Runs of lines on a page, counted from 1, in mm from its upper left corner, in drawing order.
    std::vector<QPolygonF> Lines(int page) const;
    /// Value of a line of the document's information, such as "Title".
    QString Information(const QString &name) const;
    QString Path() const { return path_; }

  private:
    QString path_;
};

} // namespace loftwing
