#include "platform/save_form.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "base/text_encoding.h"

#include <algorithm>

namespace loftwing {

namespace {

/// Without its point.
std::string TypedExtension(const std::string &path) {
    const std::string extension = ExtensionOf(path);
    return extension.empty() ? extension : LowerAscii(extension.substr(1));
}

} // namespace

FormAnswer FormeVoulue(const std::string &path, int started, int chosen,
                       const std::vector<std::string> &extensions) {
    const std::string typed = TypedExtension(path);
    const auto known = std::find(extensions.begin(), extensions.end(), typed);
    const std::string &wanted = At(extensions, chosen);
    if (path.empty() || typed == wanted) {
        return {path, chosen};
    }
    if (known != extensions.end() && !typed.empty()) {
        if (chosen == started) {
            return {path, static_cast<int>(known - extensions.begin())};
        }
        return {path.substr(0, path.size() - typed.size()) + wanted, chosen};
    }
    return {typed.empty() && !wanted.empty() ? path + "." + wanted : path, chosen};
}

std::vector<std::string> ExtensionsDe(const std::vector<std::string> &filters) {
    std::vector<std::string> extensions;
    for (const std::string &filter : filters) {
        const std::size_t start = filter.rfind("(*.");
        const std::size_t end = filter.rfind(')');
        const bool there = start != std::string::npos && end != std::string::npos && end > start;
        extensions.push_back(there ? LowerAscii(filter.substr(start + 3, end - start - 3)) : "");
    }
    return extensions;
}

} // namespace loftwing
