#include "support/scripted_platform.h"

#include <gtest/gtest.h>

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

} // namespace

ScriptedPlatform::~ScriptedPlatform() {
    EXPECT_TRUE(boxes_expected.empty()) << boxes_expected.size() << " boxes did not appear";
    EXPECT_TRUE(files_expected.empty()) << files_expected.size() << " file choices not asked for";
    EXPECT_TRUE(folders_expected.empty()) << "folder choices not asked for";
    EXPECT_TRUE(texts_expected.empty()) << "text entries not asked for";
}

BoxAnswer ScriptedPlatform::Show(const MessageBox &box) {
    boxes.push_back(box);
    if (boxes_expected.empty()) {
        ADD_FAILURE() << "unexpected box \"" << box.title << "\": " << box.text;
        return box.fallback;
    }
    const Scripted scripted = Next(boxes_expected, "box");
    if (scripted.look) {
        scripted.look(box);
    }
    return scripted.answer;
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

bool ScriptedPlatform::StartProgram(const std::string &program) {
    programs_started.push_back(program);
    return programs_start;
}

std::unique_ptr<Printer> ScriptedPlatform::OpenPrinter(const PrintQuestion &question) {
    print_questions.push_back(question);
    return make_printer ? make_printer(question) : nullptr;
}

} // namespace loftwing
