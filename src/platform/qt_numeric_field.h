/// The field that windows take numbers in.
#pragma once

#include <QLineEdit>

#include <string>
#include <string_view>

namespace loftwing {

/// A field for a number. A character that its key set lacks is swallowed, whether it is typed,
/// pasted, dropped or brought by an input method; backspace, navigation, copying and setText()
/// pass. The whole content is selected whenever the field gets the focus, by mouse too, so that
/// typing replaces it.
///
/// Numbers have a point here whatever the user's country writes, so what stands for it is taken as
/// one: a comma, and in a field for fractions of an inch the blank between whole and fraction, for
/// "8 1/2" is kept as "8.1/2".
class NumericField : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumericField(QWidget *parent = nullptr) : NumericField({}, parent) {}
    NumericField(std::string_view keys, QWidget *parent);

    /// The characters that the field admits from now on (one of the sets of core/units.h); with
    /// none it admits all. What the field holds stays.
    void SetKeys(std::string_view keys);
    bool TakesFractions() const { return keys_.contains('/'); }

    /// The tool tip. While the field takes fractions, `notation` stands below it.
    void SetTip(const std::string &tip);
    void SetNotation(const std::string &notation);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

  private:
    QString keys_;
    std::string tip_;
    std::string notation_;
    bool entered_by_press_ = false;
    bool selection_hidden_ = false;

    bool Admits(QChar character) const;
    QString Admitted(const QString &text) const;
    bool CommaIsPoint() const;
    bool BlankIsPoint() const;
    QString BeforeEntry() const;
    QString AfterEntry() const;
    QString AsTyped(const QString &text) const;
    QString AsPasted(const QString &text) const;
    void Paste(const QString &text);
    void ShowTip();
    void MontreSelection(bool shown);
    void CacheCurseur();
};

} // namespace loftwing
