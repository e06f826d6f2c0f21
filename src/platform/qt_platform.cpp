#include "platform/qt_platform.h"

#include "platform/qt_access_letters.h"
#include "platform/qt_desktop.h"
#include "platform/qt_lock.h"
#include "platform/qt_path.h"
#include "platform/qt_pointer.h"
#include "platform/qt_text.h"
#include "platform/save_form.h"

#include <QApplication>
#include <QCheckBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

namespace loftwing {

namespace {

/// The window that a question stands over.
QWidget *Asker() {
    QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::information:
        return QMessageBox::Information;
    case BoxIcon::question:
        return QMessageBox::Question;
    case BoxIcon::warning:
        return QMessageBox::Warning;
    case BoxIcon::stop:
        return QMessageBox::Critical;
    case BoxIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

struct BoxButton {
    BoxAnswer answer;
    QMessageBox::StandardButton button;
    std::string ButtonWords::*word;
    bool lettered =
        true; ///< has an access letter; Return and Escape are keys enough for the others
};

const BoxButton kOk = {BoxAnswer::ok, QMessageBox::Ok, &ButtonWords::ok, false};
const BoxButton kCancelButton = {BoxAnswer::cancel, QMessageBox::Cancel, &ButtonWords::cancel,
                                 false};
const BoxButton kYes = {BoxAnswer::yes, QMessageBox::Yes, &ButtonWords::yes};
const BoxButton kNo = {BoxAnswer::no, QMessageBox::No, &ButtonWords::no};
const BoxButton kRetry = {BoxAnswer::retry, QMessageBox::Retry, &ButtonWords::retry};
const BoxButton kLocate = {BoxAnswer::locate, QMessageBox::Open, &ButtonWords::locate};
const BoxButton kSave = {BoxAnswer::save, QMessageBox::Save, &ButtonWords::save};
const BoxButton kDiscard = {BoxAnswer::discard, QMessageBox::Discard, &ButtonWords::discard};

/// The buttons of a box; the last is what closing it means.
std::vector<BoxButton> ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::ok_cancel:
        return {kOk, kCancelButton};
    case BoxButtons::yes_no:
        return {kYes, kNo};
    case BoxButtons::retry_cancel:
        return {kRetry, kCancelButton};
    case BoxButtons::locate_cancel:
        return {kLocate, kCancelButton};
    case BoxButtons::save_yes_no:
        return {kSave, kYes, kNo};
    case BoxButtons::save_discard_cancel:
        return {kSave, kDiscard, kCancelButton};
    case BoxButtons::ok:
        break;
    }
    return {kOk};
}

/// The words of a box's buttons, with access letters; an empty one is left to the toolkit.
QStringList WordsOf(const std::vector<BoxButton> &buttons, const ButtonWords &words) {
    QStringList all;
    QStringList lettered;
    for (const BoxButton &button : buttons) {
        all += Q(words.*button.word);
        lettered += button.lettered ? all.back() : QString();
    }
    const std::vector<QChar> letters = AccessLetters(lettered);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        QString &word = all[static_cast<qsizetype>(i)];
        word = WithAccessLetter(word, letters[i]);
    }
    return all;
}

void Prepare(QFileDialog &dialog, const FileQuestion &question,
             const std::vector<std::string> &more_filters = {}) {
    dialog.setWindowTitle(Q(question.title));
    if (!question.folder.empty()) {
        dialog.setDirectory(Q(question.folder));
    }
    if (!question.filter_text.empty()) {
        QStringList filters{Q(question.filter_text)};
        for (const std::string &filter : more_filters) {
            filters += Q(filter);
        }
        dialog.setNameFilters(filters);
    }
    if (!question.name.empty()) {
        dialog.selectFile(Q(question.name));
    }
}

std::string Chosen(QFileDialog &dialog) {
    const PointerPause pause;
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return Path(dialog.selectedFiles().front());
}

std::string WithExtension(const std::string &path, const std::string &extension) {
    const bool has_one = !QFileInfo(Q(path)).suffix().isEmpty();
    return path.empty() || has_one || extension.empty() ? path : path + "." + extension;
}

std::vector<std::string> ExtensionsOffered(const QStringList &filters) {
    std::vector<std::string> texts;
    for (const QString &filter : filters) {
        texts.push_back(S(filter));
    }
    return ExtensionsDe(texts);
}

/// A title bar cuts a title that is wider than its window.
void WidenForTitle(QMessageBox &dialog) {
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    if (grid == nullptr) {
        return;
    }
    const QString with_buttons = dialog.windowTitle() + QString(16, '0');
    const int width = dialog.fontMetrics().horizontalAdvance(with_buttons);
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace

QtPlatform::QtPlatform(const std::string &program_folder) : store_(program_folder + "/airfoils") {}

void QtPlatform::SetHelp(std::function<void(int)> show, std::function<void()> close) {
    show_help_ = std::move(show);
    close_help_ = std::move(close);
}

BoxAnswer QtPlatform::Show(const MessageBox &box) {
    return Run(box, nullptr);
}

TickedAnswer QtPlatform::ShowWithTick(const MessageBox &box, const std::string &tick) {
    QCheckBox ticked(Q(tick));
    ticked.setChecked(true);
    const BoxAnswer answer = Run(box, &ticked);
    return {answer, ticked.isChecked()};
}

BoxAnswer QtPlatform::Run(const MessageBox &box, QCheckBox *tick) {
    const PointerPause pause;
    QMessageBox dialog(Asker());
    dialog.setIcon(IconOf(box.icon));
    dialog.setWindowTitle(Q(box.title));
    dialog.setTextFormat(Qt::PlainText);
    dialog.setText(Q(box.text).remove('\r'));
    WidenForTitle(dialog);
    const std::vector<BoxButton> buttons = ButtonsOf(box.buttons);
    QStringList words = WordsOf(buttons, words_);
    for (const BoxButton &button : buttons) {
        QPushButton *push = dialog.addButton(button.button);
        if (const QString word = words.takeFirst(); !word.isEmpty()) {
            push->setText(word);
        }
        if (button.answer == box.fallback) {
            dialog.setDefaultButton(push);
        }
    }
    dialog.setEscapeButton(buttons.back().button);
    dialog.setCheckBox(tick);
    const int pressed = dialog.exec();
    if (tick != nullptr) {
        tick->setParent(nullptr); // the caller's, who still wants to know of it
    }
    for (const BoxButton &button : buttons) {
        if (button.button == pressed) {
            return button.answer;
        }
    }
    return buttons.back().answer;
}

std::optional<std::string> QtPlatform::Ask(const std::string &text, const std::string &title,
                                           const std::string &proposed) {
    const PointerPause pause;
    QInputDialog dialog(Asker());
    dialog.setWindowTitle(Q(title));
    dialog.setLabelText(Q(text));
    dialog.setTextValue(Q(proposed));
    if (!words_.ok.empty()) {
        dialog.setOkButtonText(Q(words_.ok));
    }
    if (!words_.cancel.empty()) {
        dialog.setCancelButtonText(Q(words_.cancel));
    }
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return S(dialog.textValue());
}

std::string QtPlatform::ChooseOpenFile(const FileQuestion &question) {
    QFileDialog dialog(Asker());
    dialog.setFileMode(QFileDialog::ExistingFile);
    Prepare(dialog, question, question.more_filters);
    return Chosen(dialog);
}

std::string QtPlatform::ChooseSaveFile(const FileQuestion &question) {
    return ChooseSaveForm(question, {}).path;
}

// The dialog's own question would come before the extension is added.
FormAnswer QtPlatform::ChooseSaveForm(const FileQuestion &question,
                                      const std::vector<std::string> &more_filters) {
    FileQuestion next = question;
    int form = question.form;
    while (true) {
        QFileDialog dialog(Asker());
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        Prepare(dialog, next, more_filters);
        const QStringList filters = dialog.nameFilters();
        if (form < filters.size()) {
            dialog.selectNameFilter(filters[form]);
        }
        const std::string chosen = Chosen(dialog);
        const int left_with =
            static_cast<int>(std::max<qsizetype>(filters.indexOf(dialog.selectedNameFilter()), 0));
        FormAnswer answer = FormeVoulue(chosen, form, left_with, ExtensionsOffered(filters));
        answer.path = WithExtension(answer.path, question.default_extension);
        form = answer.form;
        const QFileInfo file(Q(answer.path));
        if (answer.path.empty() || !file.exists() || MayReplace(answer.path, question.title)) {
            return answer;
        }
        next.folder = Path(file.path());
        next.name = S(file.fileName());
    }
}

bool QtPlatform::MayReplace(const std::string &path, const std::string &title) {
    // In the words that the toolkit's own chooser has for it, in the user's language.
    const QString question = QCoreApplication::translate(
        "QFileDialog", "%1 already exists.\nDo you want to replace it?");
    const std::string text = S(question.arg(QFileInfo(Q(path)).fileName()));
    return Show({text, title, BoxIcon::warning, BoxButtons::yes_no, BoxAnswer::no}) ==
           BoxAnswer::yes;
}

std::string QtPlatform::ChooseFolder(const std::string &title, const std::string &folder) {
    QFileDialog dialog(Asker());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    Prepare(dialog, {title, folder, {}, {}, {}});
    return Chosen(dialog);
}

void QtPlatform::SetPointer(Pointer pointer) {
    pointer == Pointer::busy ? ShowBusyPointer() : ShowNormalPointer();
}

void QtPlatform::ProcessEvents() {
    // The window stays alive; what the user clicks meanwhile waits, for it could start the same
    // work a second time or close the window under it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

char QtPlatform::DecimalSeparator() {
    const QString separator = QLocale::system().decimalPoint();
    // A separator beyond Latin-1 is no point either.
    return separator.isEmpty() ? '.' : separator.front().toLatin1();
}

std::string QtPlatform::SystemLanguage() {
    // The list is in the user's order; a locale alone tells of numbers and dates too.
    const QStringList wanted = QLocale::system().uiLanguages();
    return wanted.isEmpty() ? std::string() : S(wanted.front().section('-', 0, 0).toLower());
}

std::string QtPlatform::StoredValue(const std::string &section, const std::string &key) {
    return store_.Value(section, key);
}

void QtPlatform::StoreValue(const std::string &section, const std::string &key,
                            const std::string &value) {
    store_.SetValue(section, key, value);
}

std::unique_ptr<FileLock> QtPlatform::LockFile(const std::string &path) {
    return HoldFile(path);
}

void QtPlatform::OpenPage(const std::string &url) {
    const QString address = Q(url);
    QDesktopServices::openUrl(QFileInfo::exists(address) ? QUrl::fromLocalFile(address)
                                                         : QUrl::fromUserInput(address));
}

bool QtPlatform::StartProgram(const std::string &program) {
    return StartByName(program);
}

void QtPlatform::ShowHelp(int context) {
    if (show_help_) {
        show_help_(context);
    }
}

void QtPlatform::CloseHelp() {
    if (close_help_) {
        close_help_();
    }
}

} // namespace loftwing
