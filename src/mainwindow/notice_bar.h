/// The strips above the main window's picture.
#pragma once

#include "programme/notices.h"

#include <QFrame>

#include <vector>

class QVBoxLayout;

namespace loftwing {

/// One calm strip for each notice, below one another: its words, its buttons, and one that closes
/// it. Without any notice it takes no room. What a button does is not its business.
class NoticeBar : public QWidget {
    Q_OBJECT

  public:
    explicit NoticeBar(QWidget *parent);

    /// Shows these notices and no others. `close` names the button that closes one.
    void Montre(const std::vector<Notice> &notices, const QString &close);

  Q_SIGNALS:
    void Demande(NoticeAct act);
    void Ferme(NoticeSubject subject);

  private:
    std::vector<Notice> shown_;
    QString close_;
    std::vector<QFrame *> strips_;
    QVBoxLayout *column_;

    QFrame *Strip(const Notice &notice);
    QWidget *CloseButton(const Notice &notice, QWidget *strip);
};

} // namespace loftwing
