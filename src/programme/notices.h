/// What the main window points out above its picture: which notices a rib has, in which words, and
/// what their buttons do. The strip that shows them is mainwindow/notice_bar.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"

#include <set>
#include <string>
#include <vector>

namespace loftwing {

/// What a notice is about; a rib has one of each at most. Another kind of notice is one more name
/// here and one more row of the table in notices.cpp.
enum class NoticeSubject {
    contour,
    import_offered,
    unit,
    heel_margins,
    airfoil_elsewhere,
    recovery,
    piece
};

/// What a button of a notice asks for.
enum class NoticeAct { take_heel_margins, open_in_other_unit, import_airfoil };

struct NoticeButton {
    NoticeAct act;
    std::string text;

    bool operator==(const NoticeButton &) const = default;
};

struct Notice {
    NoticeSubject subject;
    std::string text;
    std::vector<NoticeButton> buttons; ///< beside the one that closes the notice

    bool operator==(const Notice &) const = default;
};

/// The name of a subject, which the controls of its notice are called after.
const char *NoticeName(NoticeSubject subject);

/// The notices that stand. One that the user closes stays closed for as long as its cause lasts.
class Notices {
  public:
    /// Those of the rib that is shown, in the order of the table; none in a view in its place.
    std::vector<Notice> Standing(const Programme &programme);
    void Close(NoticeSubject subject) { closed_.insert(subject); }

  private:
    std::set<NoticeSubject> closed_;
    std::string piece_; ///< what was said of the piece; other words are another notice
};

/// Does what a button asks for. A failure is told.
void DoNotice(Programme &programme, CommandView &view, NoticeAct act);

} // namespace loftwing
