#include "support/tiny_svg.h"

#include <gtest/gtest.h>

#include <charconv>
#include <sstream>

namespace loftwing {

namespace {

double Value(const std::string &text) {
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    EXPECT_TRUE(result.ec == std::errc{} && result.ptr == text.data() + text.size())
        << "no number: \"" << text << '"';
    return value;
}

std::string Resolved(std::string text) {
    const std::vector<std::pair<std::string, std::string>> entities = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
    std::string plain;
    while (!text.empty()) {
        bool found = false;
        for (const auto &[entity, character] : entities) {
            if (text.starts_with(entity)) {
                plain += character;
                text.erase(0, entity.size());
                found = true;
                break;
            }
        }
        if (!found) {
            EXPECT_NE(text[0], '&') << "an ampersand that is no entity: " << text;
            plain += text[0];
            text.erase(0, 1);
        }
    }
    return plain;
}

void ReadAttributes(const std::string &tag, std::size_t at, SvgElement &element) {
    while (at < tag.size()) {
        EXPECT_EQ(tag[at], ' ') << tag;
        const std::size_t equals = tag.find('=', at);
        if (equals == std::string::npos) {
            ADD_FAILURE() << tag;
            return;
        }
        EXPECT_EQ(tag.at(equals + 1), '"') << tag;
        const std::size_t end = tag.find('"', equals + 2);
        if (end == std::string::npos) {
            ADD_FAILURE() << tag;
            return;
        }
        const std::string name = tag.substr(at + 1, equals - at - 1);
        EXPECT_FALSE(element.attributes.contains(name)) << tag;
        element.attributes[name] = Resolved(tag.substr(equals + 2, end - equals - 2));
        at = end + 1;
    }
}

} // namespace

std::string SvgElement::operator[](const std::string &attribute) const {
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? "(none)" : found->second;
}

double SvgElement::Number(const std::string &attribute) const {
    return Value((*this)[attribute]);
}

std::vector<SvgElement> ReadSvg(const std::string &bytes) {
    std::vector<SvgElement> elements;
    std::vector<std::string> open;
    const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    EXPECT_TRUE(bytes.starts_with(head));
    std::size_t at = head.size();
    while (at < bytes.size()) {
        EXPECT_EQ(bytes[at], '<');
        const std::size_t end = bytes.find('>', at);
        if (end == std::string::npos) {
            ADD_FAILURE() << "a tag without its end";
            return elements;
        }
        std::string tag = bytes.substr(at + 1, end - at - 1);
        const std::size_t next = std::min(bytes.find('<', end), bytes.size());
        if (tag.starts_with('/')) {
            EXPECT_FALSE(open.empty());
            EXPECT_EQ(tag.substr(1), open.empty() ? "" : open.back());
            open.pop_back();
        } else {
            const bool closed = tag.ends_with('/');
            if (closed) {
                tag.pop_back();
            }
            SvgElement element;
            element.name = tag.substr(0, tag.find(' '));
            ReadAttributes(tag, element.name.size(), element);
            element.text = Resolved(bytes.substr(end + 1, next - end - 1));
            elements.push_back(element);
            if (!closed) {
                open.push_back(element.name);
            }
        }
        at = next;
    }
    EXPECT_TRUE(open.empty()) << "not closed: " << (open.empty() ? "" : open.back());
    return elements;
}

std::vector<std::pair<double, double>> PathPoints(const std::string &d) {
    std::vector<std::pair<double, double>> points;
    std::istringstream words(d);
    std::string command;
    std::string x;
    std::string y;
    while (words >> command >> x >> y) {
        EXPECT_EQ(command, points.empty() ? "M" : "L") << d;
        points.emplace_back(Value(x), Value(y));
    }
    EXPECT_TRUE(words.eof()) << d;
    EXPECT_GE(points.size(), 2U) << d;
    return points;
}

} // namespace loftwing
