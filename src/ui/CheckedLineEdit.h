// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/SFCheckedFormatter.h"

#include <QLineEdit>

#include <optional>

namespace brinemark
{

/// A field for a number that an SFCheckedFormatter reads, shows and checks. Every edit by the user (keys, paste, cut,
/// drop, input method, undo, context menu) is checked at once. A refused edit only beeps: it never shows, emits no
/// textEdited() (except an undo that has to be corrected) and cannot be restored by undo. When editing ends (Return,
/// focus out), an edited field shows its value as the formatter writes it, before other slots of editingFinished() run.
/// Do not set another validator, an input mask or a display mode other than Normal.
class CheckedLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CheckedLineEdit(QWidget *parent = nullptr);
    explicit CheckedLineEdit(const SFCheckedFormatter &formatter, QWidget *parent = nullptr);

    /// Takes effect from the next edit on; the shown text is unchanged.
    void setFormatter(const SFCheckedFormatter &formatter) { m_formatter = formatter; }
    [[nodiscard]] const SFCheckedFormatter &formatter() const { return m_formatter; }

    /// Shows a number in the formatter's unit, neither clamped nor vetted; hasEdit() is false afterwards.
    void setValue(double value);
    /// The field's number, read, clamped and rounded by the formatter; -1 for not tested.
    [[nodiscard]] double value() const { return m_formatter.numberForString(text()); }

    /// Shows a text without checking it; hasEdit() is false afterwards.
    void setText(const QString &text);
    /// Whether the user has edited the field since setValue() or setText(), even if the text is the same again. Refused
    /// edits and edits that were undone do not count.
    [[nodiscard]] bool hasEdit() const;

    bool event(QEvent *event) override;

private:
    class Vetter;

    struct State {
        QString text;
        TextSelection selection;
    };
    /// A refused edit, kept until settle() shows its replacement.
    struct Refused {
        QString proposed;
        VettedEdit instead;
    };

    [[nodiscard]] State state() const;
    void remember();
    void rememberSelection();
    bool acceptsEdit(QString &proposed, int &cursor);
    void settle();
    void finish();
    void select(const TextSelection &selection);

    SFCheckedFormatter m_formatter;
    State m_before;  ///< text and selection before an edit
    QString m_shown; ///< text last set by the program
    std::optional<Refused> m_refused;
    int m_editEvents = 0;       ///< number of edit events (keys, drops ...) being handled
    bool m_keyPressed = false;  ///< a key is being handled: ignore the selections it makes before it edits
    bool m_settling = false;    ///< the field itself is changing its text
    bool m_editSettled = false; ///< edited, although isModified() no longer says so
};

} // namespace brinemark
