/// A world in which nobody listens, for benchmarks and fuzz targets.
#pragma once

#include "output/printer.h"
#include "platform/platform.h"

namespace loftwing {

class SilentPlatform : public Platform {
  public:
    BoxAnswer Show(const MessageBox &box) override { return box.fallback; }
    std::optional<std::string> Ask(const std::string &, const std::string &,
                                   const std::string &) override {
        return std::nullopt;
    }
    std::string ChooseOpenFile(const FileQuestion &) override { return {}; }
    std::string ChooseSaveFile(const FileQuestion &) override { return {}; }
    std::string ChooseFolder(const std::string &, const std::string &) override { return {}; }
    void SetPointer(Pointer) override {}
    void ProcessEvents() override {}
    char DecimalSeparator() override { return '.'; }
    std::string StoredValue(const std::string &, const std::string &) override { return {}; }
    void StoreValue(const std::string &, const std::string &, const std::string &) override {}
    void OpenPage(const std::string &) override {}
    bool StartProgram(const std::string &) override { return false; }
    void ShowHelp(int) override {}
    void CloseHelp() override {}
    void ShowPrinterSettings() override {}
    std::string PrinterName() override { return {}; }
    std::unique_ptr<Printer> OpenPrinter(const PrintQuestion &) override { return nullptr; }
};

} // namespace loftwing
