/// Names of files and folders: UTF-8 texts in the program, whatever the system has outside. No text
/// makes any of this throw; one that can't be the name of a file is one of a file that isn't there.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace loftwing {

/// What a system makes of names.
enum class NameRules {
    bytes,  ///< any bytes but '/' and zero; "/" separates
    letters ///< wide letters, some of them and some names forbidden; "/" and "\" separate
};
/// Those of the system that the program runs on.
NameRules RulesHere();

/// A text as a path of the system. Where paths are wide, bytes that are no UTF-8 become letters
/// that no file's name has.
std::filesystem::path PathOf(std::string_view text);
/// A path of the system as a text. Where paths are wide, half a pair of letters, which names may
/// hold, becomes three bytes that are no UTF-8 and that PathOf takes back.
std::string TextOf(const std::filesystem::path &path);

/// The same between texts and the 16-bit letters of wide paths.
std::u16string WideName(std::string_view text);
std::string NarrowName(std::u16string_view name);

/// Parts of a path, as std::filesystem::path has them.
std::string NameIn(std::string_view path);
std::string StemOf(std::string_view path);
std::string ExtensionOf(std::string_view path);
std::string FolderOf(std::string_view path);

/// Whether `letter` separates the names of a path.
bool Separates(char letter, NameRules rules = RulesHere());
/// Whether a folder's path ends in what separates it from a name.
bool EndsInSeparator(std::string_view folder, NameRules rules = RulesHere());
/// A folder's path with one behind it, of the kind that the path has before.
std::string WithSeparator(std::string folder, NameRules rules = RulesHere());
/// The folder above a folder; empty where it is the topmost one.
std::string Above(std::string_view folder);
/// A path with "/" alone between its names, as files have it that shall be the same everywhere.
std::string WithSlashes(std::string path, NameRules rules = RulesHere());
/// `text` as the name of a file: where the system forbids letters or names it has dashes for them.
/// An extension may still follow.
std::string AsFileName(std::string text, NameRules rules = RulesHere());

/// Whether a path leads to another computer's files: "\\computer\folder". The library takes such a
/// path for one on the current drive.
bool IsOnNetwork(const std::filesystem::path &path, NameRules rules = RulesHere());

/// Where `path` leads to as seen from `folder`.
std::filesystem::path SeenFrom(const std::filesystem::path &folder,
                               const std::filesystem::path &path);
/// A path without "." and "..", as text alone tells it.
std::filesystem::path Plain(const std::filesystem::path &path, NameRules rules = RulesHere());
/// A path from its root on, without "." and "..". Empty, with `error` set, where the system doesn't
/// say what it starts from.
std::filesystem::path WholePath(const std::filesystem::path &path, std::error_code &error);

/// What is at a path; false too where that can't be told.
bool IsThere(std::string_view path);
bool IsFolder(std::string_view path);
bool IsPlainFile(std::string_view path);

} // namespace loftwing
