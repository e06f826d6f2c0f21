#include "lang/ini_file.h"

#include "base/failure.h"
#include "base/text_encoding.h"
#include "lang/ini_line.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr std::size_t kLongestValue = 199;
constexpr std::size_t kNowhere = std::string::npos;

std::string_view UpToLineEnd(std::string_view value) {
    return value.substr(0, value.find_first_of("\r\n"));
}

/// What becomes of a value of any length on its way through a file.
std::string AsRead(std::string_view value) {
    return std::string(IniValueOf("=" + std::string(UpToLineEnd(value))));
}

} // namespace

IniFile IniFile::Read(const std::string &path) {
    return Parse(ReadWholeFileIfThere(path));
}

IniFile IniFile::Parse(std::string_view bytes) {
    IniFile file;
    file.lines_ = SplitLines(AnyToUtf8(bytes));
    file.index_.emplace(file.lines_);
    return file;
}

std::size_t IniFile::FindSection(std::string_view section) const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (IsIniSection(lines_[i]) && SameIniName(IniSectionName(lines_[i]), section)) {
            return i;
        }
    }
    return kNowhere;
}

std::size_t IniFile::FindKey(std::string_view section, std::string_view key) const {
    if (index_) {
        return index_->Find(lines_, section, key).value_or(kNowhere);
    }
    const std::size_t start = FindSection(section);
    std::size_t trimmed = kNowhere;
    for (std::size_t i = start + 1; start != kNowhere && i < lines_.size(); ++i) {
        if (IsIniSection(lines_[i])) {
            break;
        }
        const std::string_view candidate = IniKeyOf(lines_[i]);
        if (!candidate.empty() && SameIniName(candidate, key)) {
            return i;
        }
        if (trimmed == kNowhere && !candidate.empty() &&
            SameIniName(WithoutIniBlanks(candidate), WithoutIniBlanks(key))) {
            trimmed = i;
        }
    }
    return trimmed;
}

std::string IniFile::Value(std::string_view section, std::string_view key) const {
    const std::size_t at = FindKey(section, key);
    return at == kNowhere ? std::string()
                          : FirstCharacters(std::string(IniValueOf(lines_[at])), kLongestValue);
}

std::string IniFile::Path(std::string_view section, std::string_view key) const {
    const std::size_t at = FindKey(section, key);
    return at == kNowhere ? std::string() : std::string(IniValueOf(lines_[at]));
}

bool IniFile::SetPath(std::string_view section, std::string_view key, const std::string &path) {
    // A name that begins with a blank or stands in quotes would lose them.
    const std::string kept = AsRead(path) == path ? path : "./" + path;
    if (!IsUtf8(kept) || AsRead(kept) != kept) {
        return false;
    }
    SetValue(section, key, kept);
    return true;
}

bool IniFile::Keeps(std::string_view value) {
    return IsUtf8(value) && AsRead(value) == value && CharacterCount(value) <= kLongestValue;
}

void IniFile::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    // A line break would make another line of the rest, and that line could be anything.
    const std::string_view one_line = UpToLineEnd(value);
    // Bytes that are no UTF-8 would have the whole file read as Windows-1252.
    const std::string line =
        std::string(key) + '=' + (IsUtf8(one_line) ? std::string(one_line) : ToUtf8(one_line));
    const std::size_t at = FindKey(section, key);
    if (at != kNowhere) {
        if (IsIniSection(line) || !SameIniName(IniKeyOf(line), IniKeyOf(lines_[at]))) {
            index_.reset();
        }
        lines_[at] = line;
        return;
    }
    index_.reset();
    std::size_t place = FindSection(section);
    if (place == kNowhere) {
        lines_.push_back('[' + std::string(section) + ']');
        lines_.push_back(line);
        return;
    }
    ++place;
    while (place < lines_.size() && !IsIniSection(lines_[place])) {
        ++place;
    }
    while (WithoutIniBlanks(lines_[place - 1]).empty()) {
        --place;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), line);
}

std::vector<std::pair<std::string, std::string>> IniFile::Keys() const {
    std::vector<std::pair<std::string, std::string>> keys;
    std::string section;
    for (const std::string &line : lines_) {
        if (IsIniSection(line)) {
            section = IniSectionName(line);
        } else if (!IniKeyOf(line).empty()) {
            keys.emplace_back(section, IniKeyOf(line));
        }
    }
    return keys;
}

std::string IniFile::Text() const {
    std::string text;
    for (const std::string &line : lines_) {
        text += line + "\r\n";
    }
    return text;
}

void IniFile::Write(const std::string &path, Flush flush) const {
    WriteWholeFile(path, Text(), flush);
}

bool IniFile::Save(const std::string &path) const {
    return ReplaceFile(path, Text(), Flush::yes);
}

std::string GetINIFile(std::string_view section, std::string_view key, const std::string &path) {
    return IniFile::Read(path).Value(section, key);
}

void StoreINIFile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string &path) {
    const std::string old = ReadWholeFileIfThere(path);
    IniFile file = IniFile::Parse(old);
    file.SetValue(section, key, value);
    if (old.empty() || file.Text() != old) {
        file.Write(path, Flush::yes); // waiting for a disk is for what has changed
    }
}

bool WriteINIFile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string &path) {
    try {
        StoreINIFile(section, key, value, path);
        return true;
    } catch (const Failure &) {
        return false; // what can't be read must not be written over
    }
}

} // namespace loftwing
