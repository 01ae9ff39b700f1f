// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/SFCheckedFormatter.h"

#include <QLineEdit>

#include <optional>

namespace brinemark
{

/// A field for a number that an SFCheckedFormatter reads, shows and vets. Every edit that a person makes (keys, paste,
/// cut, drop, input method, undo, context menu) is vetted when it is made: what is refused never shows, is not
/// announced by textEdited() (but for an undo that has to be put right) and cannot be brought back by undo; it only
/// beeps. When editing ends (Return, focus out), an edited field shows its value as the formatter writes it, before
/// other listeners hear editingFinished(). Do not give it another validator, an input mask or a display mode other than
/// Normal.
class CheckedLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CheckedLineEdit(QWidget *parent = nullptr);
    explicit CheckedLineEdit(const SFCheckedFormatter &formatter, QWidget *parent = nullptr);

    /// Takes effect from the next edit on; the text that is shown stays.
    void setFormatter(const SFCheckedFormatter &formatter) { m_formatter = formatter; }
    [[nodiscard]] const SFCheckedFormatter &formatter() const { return m_formatter; }

    /// Shows a number in the formatter's unit, neither clamped nor vetted; hasEdit() is false afterwards.
    void setValue(double value);
    /// What the field holds now, read, clamped and rounded by the formatter; -1 for not tested.
    [[nodiscard]] double value() const { return m_formatter.numberForString(text()); }

    /// Shows a text that is not vetted, and forgets that the field was edited.
    void setText(const QString &text);
    /// Whether a person has edited the field since setValue() or setText(), be it to the same text. Refused edits and
    /// edits that were undone do not count.
    [[nodiscard]] bool hasEdit() const;

    bool event(QEvent *event) override;

private:
    class Vetter;

    struct State {
        QString text;
        TextSelection selection;
    };
    /// A vetted edit that must not stand, until the field has settled on what stands instead.
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
    State m_before;  ///< what an edit starts from
    QString m_shown; ///< as last set by the program
    std::optional<Refused> m_refused;
    int m_editEvents = 0;       ///< that are being handled: keys, drops ...
    bool m_keyPressed = false;  ///< selections made by a key on its way to an edit are not where the edit starts
    bool m_settling = false;    ///< the field changes by its own doing
    bool m_editSettled = false; ///< an edit that the line edit's own mark no longer tells of
};

} // namespace brinemark
