#include "support/naive_reader.h"

#include "base/text_encoding.h"

#include <charconv>
#include <regex>

namespace loftwing {

namespace {

struct Broken {};

/// Position of `what` counted from 1, 0 when it isn't there.
std::size_t Place(const std::string &text, char what) {
    const std::size_t at = text.find(what);
    return at == std::string::npos ? 0 : at + 1;
}

std::string Trimmed(const std::string &text) {
    return std::regex_replace(text, std::regex("^ +| +$"), "");
}

double Number(const std::string &text) {
    static const std::regex kNumber(R"(^([+-]?)((\d+\.?\d*|\.\d+)([eE][+-]?\d+)?))");
    const std::string solid = std::regex_replace(text, std::regex(" "), "");
    std::smatch match;
    if (!std::regex_search(solid, match, kNumber)) {
        return 0.0;
    }
    const std::string digits = match[2].str();
    double value = 0.0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        throw Broken{}; // the files of the sweep hold no number that is too small
    }
    return match[1] == "-" ? -value : value;
}

/// The y text of a line: up to the blank behind the first digits.
std::string YText(const std::string &rest) {
    std::smatch match;
    return std::regex_search(rest, match, std::regex(R"(^[^0-9]*[^ ]*)")) ? match[0].str() : rest;
}

std::string Buffer(const std::string &bytes) {
    std::string buffer = std::regex_replace(ToUtf8(bytes), std::regex("\r\n"), "\n");
    if (!buffer.empty() && buffer.back() != '\n') {
        buffer += '\n';
    }
    while (Place(buffer, '\t') > 1) {
        buffer[Place(buffer, '\t') - 1] = ' ';
    }
    return buffer;
}

NaiveReading Points(std::string buffer, NaiveAirfoil &p) {
    std::size_t k = 1;
    p.Add(0.0, 0.0);
    while (buffer != "\n" && !buffer.empty()) {
        const std::size_t end = Place(buffer, '\n');
        const std::string line = Trimmed(buffer.substr(0, end - 1));
        const std::size_t blank = Place(line, ' ');
        p.x[k] = Number(line.substr(0, blank));
        if (p.x[1] != 1.0) {
            return NaiveReading::first_x;
        }
        if (blank == 0) {
            throw Broken{};
        }
        p.y[k] = Number(YText(line.substr(blank - 1)));
        if (k > 1 && p.x[k] >= 1.0) {
            break;
        }
        if (k > 1 && p.x[k] == p.x[k - 1] && p.y[k] == p.y[k - 1]) {
            return NaiveReading::double_point;
        }
        buffer = buffer.substr(end);
        k = k + 1;
        p.Add(0.0, 0.0);
    }
    return p.x[k] == 1.0 ? NaiveReading::read : NaiveReading::last_x;
}

} // namespace

NaiveFile ReadNaively(const std::string &bytes) {
    NaiveFile file;
    std::string buffer = Buffer(bytes);
    const std::size_t end = Place(buffer, '\n');
    const std::string first = buffer.substr(0, end == 0 ? 0 : end - 1);
    file.title = Trimmed(first);
    if (std::regex_search(first, std::regex("[A-Za-z]"))) {
        buffer = buffer.substr(end);
    }
    if (file.title.empty()) {
        file.reading = NaiveReading::no_title;
        return file;
    }
    try {
        file.reading = Points(buffer, file.points);
    } catch (const Broken &) {
        file.reading = NaiveReading::failure;
    }
    return file;
}

} // namespace loftwing
