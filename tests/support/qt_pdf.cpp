#include "support/qt_pdf.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTransform>
#include <QXmlStreamReader>

namespace loftwing {

namespace {

constexpr double kMmPerPoint = 25.4 / 72.0;

QTransform TransformOf(const QString &attribute) {
    static const QRegularExpression kMatrix("matrix\\(([^)]*)\\)");
    const QStringList n = kMatrix.match(attribute).captured(1).split(',');
    if (n.size() != 6) {
        return {};
    }
    return {n[0].toDouble(), n[1].toDouble(), n[2].toDouble(),
            n[3].toDouble(), n[4].toDouble(), n[5].toDouble()};
}

/// Points of "M x y L x y ..."; of a closed one, "... Z M x y", the first again at the end. None
/// for anything else, such as curves.
QPolygonF PointsOf(const QString &path) {
    static const QRegularExpression kBlanks("\\s+");
    const QStringList words = path.split(kBlanks, Qt::SkipEmptyParts);
    QPolygonF points;
    for (qsizetype i = 0; i + 2 < words.size(); i += 3) {
        if (words[i] == "Z" && i > 0 && i + 4 == words.size()) {
            points.append(points.front());
            return points;
        }
        if (words[i] != (i == 0 ? "M" : "L")) {
            return {};
        }
        points.append({words[i + 1].toDouble(), words[i + 2].toDouble()});
    }
    return points;
}

} // namespace

QByteArray OutputOf(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    const bool done = process.waitForFinished(60'000);
    EXPECT_TRUE(done) << program.toStdString() << ": " << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0) << program.toStdString();
    return process.readAllStandardOutput();
}

std::vector<QSizeF> ReadPdf::PageSizes() const {
    static const QRegularExpression kSize("Page +\\d+ size: +([\\d.]+) x ([\\d.]+) pts");
    const QString text = QString::fromUtf8(OutputOf("pdfinfo", {"-f", "1", "-l", "9999", path_}));
    std::vector<QSizeF> sizes;
    for (const QRegularExpressionMatch &match : kSize.globalMatch(text)) {
        sizes.emplace_back(match.captured(1).toDouble(), match.captured(2).toDouble());
    }
    return sizes;
}

std::vector<QPolygonF> ReadPdf::Lines(int page) const {
    const QString number = QString::number(page);
    const QByteArray svg = OutputOf("pdftocairo", {"-svg", "-f", number, "-l", number, path_, "-"});
    std::vector<QPolygonF> lines;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        reader.readNext();
        const QXmlStreamAttributes its = reader.attributes();
        if (!reader.isStartElement() || reader.name() != QLatin1String("path") ||
            !its.value("style").contains(QLatin1String("fill:none"))) {
            continue;
        }
        const QPolygonF points = PointsOf(its.value("d").toString());
        const QTransform to_points = TransformOf(its.value("transform").toString());
        if (!points.isEmpty()) {
            lines.push_back(
                (to_points * QTransform::fromScale(kMmPerPoint, kMmPerPoint)).map(points));
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return lines;
}

QString ReadPdf::Information(const QString &name) const {
    const QString text = QString::fromUtf8(OutputOf("pdfinfo", {path_}));
    for (const QString &line : text.split('\n')) {
        if (line.startsWith(name + ":")) {
            return line.mid(name.size() + 1).trimmed();
        }
    }
    return {};
}

} // namespace loftwing
