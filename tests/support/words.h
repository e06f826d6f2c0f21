/// A platform and a small language table for tests of rules that show messages.
#pragma once

#include "core/messages.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <string_view>

namespace loftwing {

/// Messages whose words are those of `table`, the text of a language file.
struct Words {
    explicit Words(std::string_view table) {
        folder.File("Test.lng", table);
        language.Charge(folder.Path(), "Test");
    }

    const MessageBox &LastBox() const { return platform.boxes.back(); }

    TempFolder folder;
    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
};

} // namespace loftwing
