#include "lang/failure_words.h"

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

struct Row {
    int number;
    LngKey words;
    const char *usual; ///< where the language has no words
};

constexpr std::array<Row, 14> kRows = {{
    {kInvalidProcedureCall, {"Erreur", "190"}, "Invalid procedure call or argument"},
    {kOverflow, {"Erreur", "191"}, "Overflow"},
    {kOutOfMemory, {"Erreur", "192"}, "Out of memory"},
    {kSubscriptOutOfRange, {"Erreur", "193"}, "Subscript out of range"},
    {kDivisionByZero, {"Erreur", "194"}, "Division by zero"},
    {kTypeMismatch, {"Erreur", "195"}, "Type mismatch"},
    {kFileNotFound, {"Erreur", "196"}, "File not found"},
    {kDeviceError, {"Erreur", "197"}, "Device input/output error"},
    {kDiskFull, {"Erreur", "198"}, "Disk full"},
    {kInputPastEnd, {"Erreur", "199"}, "Input past end of file"},
    {kPermissionDenied, {"Erreur", "200"}, "Permission denied"},
    {kPathFileAccess, {"Erreur", "201"}, "Path/file access error"},
    {kPathNotFound, {"Erreur", "202"}, "Path not found"},
    {kCancel, {"Erreur", "203"}, "Cancel was selected"},
}};

constexpr Row kUnknown = {-1, {"Erreur", "204"}, "Unknown failure"};
constexpr LngKey kBeforeDetail = {"Erreur", "205"}; // languages set the colon in different ways

const Row &RowOf(int number) {
    const auto *row = std::find_if(kRows.begin(), kRows.end(),
                                   [&](const Row &each) { return each.number == number; });
    return row == kRows.end() ? kUnknown : *row;
}

std::string Or(const std::string &words, const char *usual) {
    return words.empty() ? usual : words;
}

} // namespace

std::string Description(const Failure &failure, const LngIni &language) {
    if (failure.number == 0) {
        return failure.detail; // nothing happened that has a name
    }
    const Row &row = RowOf(failure.number);
    std::string meaning = Or(language.LngText(row.words), row.usual);
    if (failure.detail.empty()) {
        return meaning;
    }
    return meaning + Or(language.LngText(kBeforeDetail), ": ") + failure.detail;
}

} // namespace loftwing
