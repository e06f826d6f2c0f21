#include "features/qt_click_label_accessible.h"

#include "features/qt_numbered_list.h"

#include <QAccessibleWidget>

namespace loftwing {

namespace {

class AccessibleClickLabel : public QAccessibleWidget {
  public:
    explicit AccessibleClickLabel(ClickLabel &label)
        : QAccessibleWidget(&label, QAccessible::Button), label_(label) {}

    QString text(QAccessible::Text kind) const override {
        const QString told = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && told.isEmpty() ? label_.text() : told;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = label_.EstMarque();
        return state;
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (!label_.text().isEmpty()) {
            names.prepend(pressAction());
        }
        return names;
    }
    void doAction(const QString &name) override {
        if (name == pressAction()) {
            Q_EMIT label_.Clicked();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    ClickLabel &label_;
};

QAccessibleInterface *InterfaceOf(const QString &, QObject *object) {
    auto *label = qobject_cast<ClickLabel *>(object);
    return label == nullptr ? nullptr : new AccessibleClickLabel(*label); // the toolkit owns it
}

} // namespace

void TellScreenReaders() {
    [[maybe_unused]] static const bool told = [] {
        QAccessible::installFactory(&InterfaceOf);
        return true;
    }();
}

} // namespace loftwing
