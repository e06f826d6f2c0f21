#include "support/scripted_platform.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <utility>

namespace loftwing {

namespace {

template <class Answer>
Answer Next(std::deque<Answer> &expected, const std::string &what) {
    if (expected.empty()) {
        ADD_FAILURE() << "unexpected " << what;
        return Answer{};
    }
    Answer answer = expected.front();
    expected.pop_front();
    return answer;
}

void FailAt(const std::source_location &where, const std::string &what) {
    ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line())) << what;
}

void Check(const testing::Matcher<const std::string &> &wanted, const std::string &got,
           const std::string &what, const std::source_location &where) {
    if (!wanted.Matches(got)) {
        FailAt(where, "the " + what + " of the box expected here\nis:     \"" + got +
                          "\"\nwanted: " + testing::DescribeMatcher<const std::string &>(wanted));
    }
}

} // namespace

ScriptedPlatform::~ScriptedPlatform() {
    for (const ExpectedBox &box : boxes_expected_) {
        FailAt(box.where, "the box expected here did not appear");
    }
    EXPECT_TRUE(files_expected.empty()) << files_expected.size() << " file choices not asked for";
    EXPECT_TRUE(folders_expected.empty()) << "folder choices not asked for";
    EXPECT_TRUE(texts_expected.empty()) << "text entries not asked for";
}

void ScriptedPlatform::Expect(BoxAnswer answer, const BoxLook &look,
                              const std::source_location &where) {
    boxes_expected_.push_back({answer, look, where});
}

void ScriptedPlatform::ExpectBoxes(int count, const std::source_location &where) {
    for (int i = 0; i < count; ++i) {
        Expect(BoxAnswer::ok, {}, where);
    }
}

std::size_t ScriptedPlatform::ForgetExpected() {
    return std::exchange(boxes_expected_, {}).size();
}

BoxAnswer ScriptedPlatform::Show(const MessageBox &box) {
    boxes.push_back(box);
    if (boxes_expected_.empty()) {
        ADD_FAILURE() << "unexpected box \"" << box.title << "\": " << box.text;
        return box.fallback;
    }
    const ExpectedBox expected = Next(boxes_expected_, "box");
    const BoxLook &look = expected.look;
    Check(look.text, box.text, "text", expected.where);
    Check(look.title, box.title, "title", expected.where);
    if (look.icon && *look.icon != box.icon) {
        FailAt(expected.where, "the box expected here has another icon");
    }
    if (look.buttons && *look.buttons != box.buttons) {
        FailAt(expected.where, "the box expected here has other buttons");
    }
    if (look.meanwhile) {
        look.meanwhile();
    }
    return expected.answer;
}

TickedAnswer ScriptedPlatform::ShowWithTick(const MessageBox &box, const std::string &tick) {
    ticks_offered.push_back(tick);
    return {Show(box), leaves_ticks};
}

std::optional<std::string> ScriptedPlatform::Ask(const std::string &text, const std::string &,
                                                 const std::string &) {
    return Next(texts_expected, "entry: " + text);
}

std::string ScriptedPlatform::NextFile(const FileQuestion &question) {
    file_questions.push_back(question);
    return Next(files_expected, "file chooser: " + question.title);
}

std::string ScriptedPlatform::ChooseOpenFile(const FileQuestion &question) {
    return NextFile(question);
}

std::string ScriptedPlatform::ChooseSaveFile(const FileQuestion &question) {
    return NextFile(question);
}

FormAnswer ScriptedPlatform::ChooseSaveForm(const FileQuestion &question,
                                            const std::vector<std::string> &more_filters) {
    filters_offered = more_filters;
    return {NextFile(question), form_chosen};
}

std::string ScriptedPlatform::ChooseFolder(const std::string &title, const std::string &folder) {
    folder_questions.push_back({title, folder});
    return Next(folders_expected, "folder chooser: " + title);
}

std::string ScriptedPlatform::StoredValue(const std::string &section, const std::string &key) {
    return store[{section, key}];
}

void ScriptedPlatform::StoreValue(const std::string &section, const std::string &key,
                                  const std::string &value) {
    store[{section, key}] = value;
}

std::unique_ptr<FileLock> ScriptedPlatform::LockFile(const std::string &path) {
    class Held : public FileLock {
      public:
        Held(std::set<std::string> &all, std::string path) : all_(all), path_(std::move(path)) {
            all_.insert(path_);
        }
        bool Made() const { return std::ofstream(path_).good(); }
        Held(const Held &) = delete;
        Held &operator=(const Held &) = delete;
        ~Held() override {
            all_.erase(path_);
            std::error_code ignored;
            std::filesystem::remove(path_, ignored);
        }

      private:
        std::set<std::string> &all_;
        std::string path_;
    };
    if (locked.contains(path)) {
        return nullptr;
    }
    auto held = std::make_unique<Held>(locked, path);
    return held->Made() ? std::move(held) : nullptr;
}

bool ScriptedPlatform::StartProgram(const std::string &program) {
    programs_started.push_back(program);
    return programs_start;
}

std::unique_ptr<Printer> ScriptedPlatform::OpenPrinter(const PrintQuestion &question) {
    print_questions.push_back(question);
    return make_printer ? make_printer(question) : nullptr;
}

} // namespace loftwing
