/// What all windows share: numeric fields, shared words, help, names, showing.
#pragma once

#include "lang/LngIni.h"
#include "platform/qt_numeric_field.h"
#include "platform/qt_text.h"

#include <QRect>

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

class QAbstractButton;
class QDialog;
class QLabel;

namespace loftwing {

class Platform;

/// Whether a key of the toolkit is Return, of either block of keys.
bool IsReturn(int key);

/// Gives a field the focus with its whole content selected, as after a refused entry.
void SelectField(QLineEdit &field);

/// What stands in the fields of an array.
template <class Fields>
auto FieldTexts(const Fields &fields) {
    std::array<std::string, std::tuple_size_v<Fields>> texts;
    std::transform(std::begin(fields), std::end(fields), texts.begin(),
                   [](const QLineEdit &field) { return S(field.text()); });
    return texts;
}

/// Shows texts in the fields of an array, one in each.
template <class Fields, class Texts>
void ShowTexts(Fields &fields, const Texts &texts) {
    auto text = std::begin(texts);
    for (QLineEdit &field : fields) {
        field.setText(Q(*text++));
    }
}

/// Calls `handler` of a window with the index of the control of an array that sends `signal`.
template <class Controls, class Signal, class Window>
void ConnectEach(Controls &controls, Signal signal, Window *window, void (Window::*handler)(int)) {
    int index = 0;
    for (auto &control : controls) {
        QObject::connect(&control, signal, window,
                         [window, handler, index] { (window->*handler)(index); });
        ++index;
    }
}

/// Shows the words of labels as they stand even when they look like markup.
void PlainText(std::initializer_list<QLabel *> labels);

/// Makes a label the caption of a field: its access key leads there.
void SetCaption(QLabel &caption, QWidget &field);

/// The words that buttons of all windows share.
enum class SharedWord { ok, cancel, help, apply, close };

std::string ButtonWord(const LngIni &language, SharedWord word);
void SetButtonWord(QAbstractButton &button, const LngIni &language, SharedWord word);

/// What is hidden keeps its place, so that nothing else moves.
void GardePlace(QWidget &widget);

/// Gives a widget a tool tip, shown as it stands even when it looks like markup.
void SetTip(QWidget &widget, const std::string &tip);
/// The same for a field, which may have its notation to tell too.
inline void SetTip(NumericField &field, const std::string &tip) {
    field.SetTip(tip);
}

/// Shows the first lines of what there is to say, the others in the tool tip; nothing hides it.
void MontreLignes(QLabel &label, const std::vector<std::string> &lines);

/// Room for the names of most airfoils.
inline constexpr int kNameLetters = 24;

/// Makes a field one that only shows a name or a folder, which starts at its left end and stands in
/// the tool tip too. `letters` is how many it has room for.
void MakeNameDisplay(QLineEdit &field, int letters);

/// Makes the help button of a dialog and F1 in it open the help at `context`.
void ConnectHelp(QDialog &dialog, QAbstractButton &help, Platform &platform, int context);

/// Names a control; tests, accessibility tools and style sheets find it by that.
void NameControl(QObject &control, const char *name);
/// The same for an element of an array: "Text1(0)".
void NameControl(QObject &control, const char *name, int index);

/// Names controls of a window, each with its own name.
void NameControls(std::initializer_list<std::pair<QObject *, const char *>> names);

/// Names all elements of an array of controls or of pointers to controls, from index 0.
template <class Array>
void NameControls(Array &controls, const char *name) {
    int index = 0;
    for (auto &control : controls) {
        if constexpr (std::is_pointer_v<std::remove_reference_t<decltype(control)>>) {
            NameControl(*control, name, index);
        } else {
            NameControl(control, name, index);
        }
        ++index;
    }
}

/// Shows a dialog in the middle of its parent, or of the active window, or beside `clear` where the
/// screen has room for that, and waits until it is closed. Gives what exec() gives. A busy pointer
/// is put aside meanwhile.
int ShowModal(QDialog &dialog, const QRect &clear = {});

} // namespace loftwing
