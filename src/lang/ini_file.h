/// Files of sections, keys and values: the settings file and the language files.
#pragma once

#include "base/whole_file.h"
#include "lang/ini_index.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace loftwing {

/// An ini-style file in memory. Section and key names ignore case. A key is looked up as it stands,
/// trailing blank included, and only then trimmed, so that two keys may differ by that blank alone.
class IniFile {
  public:
    /// Reads the file; a missing one is an empty one. Failure as ReadWholeFile when it is there but
    /// can't be read.
    static IniFile Read(const std::string &path);
    static IniFile Parse(std::string_view bytes);

    /// The value without the blanks around it and without one pair of quotes around that, at most
    /// 199 characters; empty where there is none.
    std::string Value(std::string_view section, std::string_view key) const;
    /// The same without its limit: the path of a file.
    std::string Path(std::string_view section, std::string_view key) const;
    /// Replaces the value, or adds key and section. All other lines stay as they are. A value ends
    /// at its first line break; section and key are names without one. Bytes that are no UTF-8 are
    /// taken for Windows-1252.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);
    /// The same for a path that Path must give back; one from a folder on may get a "./" in front.
    /// False, and nothing changed, when no line can hold it: it has a line end or is no UTF-8.
    bool SetPath(std::string_view section, std::string_view key, const std::string &path);
    /// Whether Value would give this back after SetValue.
    static bool Keeps(std::string_view value);

    /// Every (section, key as it stands) in file order.
    std::vector<std::pair<std::string, std::string>> Keys() const;
    /// The whole file, lines ended by CR LF.
    std::string Text() const;
    /// Writes it over `path` as a whole. Failures as WriteWholeFile.
    void Write(const std::string &path, Flush flush) const;
    /// The same for settings, which must outlast a power cut: years of a user's choices stand in
    /// them. False when that isn't possible.
    bool Save(const std::string &path) const;

  private:
    std::vector<std::string> lines_;
    std::optional<IniIndex> index_; ///< none once a line has come or changed its name

    std::size_t FindSection(std::string_view section) const;
    std::size_t FindKey(std::string_view section, std::string_view key) const;
};

/// One value of an ini-style file; see IniFile::Read and IniFile::Value.
std::string GetINIFile(std::string_view section, std::string_view key, const std::string &path);

/// Writes one value of the settings, creating file and section as needed. The file is replaced as a
/// whole, so that a crash leaves the old one, and only where that changes it. Failures as
/// IniFile::Read and WriteWholeFile, and the file untouched.
void StoreINIFile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string &path);

/// The same where the program does without: false instead of the failure.
bool WriteINIFile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string &path);

} // namespace loftwing
