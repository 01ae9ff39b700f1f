// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/CheckedLineEdit.h"

#include "ui/Alerts.h"

#include <QEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QValidator>

#include <utility>

namespace brinemark
{

namespace
{

/// Whether the user can edit the text through an event of this type.
bool mayEdit(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::InputMethod || type == QEvent::Drop ||
           type == QEvent::MouseButtonRelease; // the middle button pastes
}

} // namespace

/// Checks every edit. QLineEdit asks its validator about every text before it emits textEdited, and reverts exactly the
/// edit that is invalid, so that its undo steps stay correct.
class CheckedLineEdit::Vetter : public QValidator
{
public:
    explicit Vetter(CheckedLineEdit *field)
        : QValidator(field)
        , m_field(field)
    {
    }
    State validate(QString &text, int &cursor) const override
    {
        return m_field->acceptsEdit(text, cursor) ? Acceptable : Invalid;
    }

private:
    CheckedLineEdit *m_field;
};

CheckedLineEdit::CheckedLineEdit(QWidget *parent)
    : CheckedLineEdit(SFCheckedFormatter(), parent)
{
}

CheckedLineEdit::CheckedLineEdit(const SFCheckedFormatter &formatter, QWidget *parent)
    : QLineEdit(parent)
    , m_formatter(formatter)
{
    setValidator(new Vetter(this));
    // For an edit, QLineEdit validates first, then emits textEdited, textChanged, selectionChanged and
    // cursorPositionChanged. Undo and input methods move the cursor first, when the new text is already set.
    connect(this, &QLineEdit::textEdited, this, [this] {
        remember();
        if (m_editEvents == 0)
            settle();
    });
    connect(this, &QLineEdit::textChanged, this, &CheckedLineEdit::remember);
    connect(this, &QLineEdit::selectionChanged, this, &CheckedLineEdit::rememberSelection);
    connect(this, &QLineEdit::cursorPositionChanged, this, &CheckedLineEdit::rememberSelection);
    connect(this, &QLineEdit::editingFinished, this, &CheckedLineEdit::finish);
}

void CheckedLineEdit::setValue(double value)
{
    setText(m_formatter.stringForObjectValue(value));
}

void CheckedLineEdit::setText(const QString &text)
{
    m_refused.reset();
    QLineEdit::setText(text);
    m_shown = QLineEdit::text();
    m_editSettled = false;
}

bool CheckedLineEdit::hasEdit() const
{
    // Assistive technology changes the text without the line edit marking it as modified.
    return m_editSettled || isModified() || text() != m_shown;
}

bool CheckedLineEdit::event(QEvent *event)
{
    if (!mayEdit(event->type()))
        return QLineEdit::event(event);
    const QPointer<CheckedLineEdit> self(this);
    const bool outerKey = std::exchange(m_keyPressed, m_keyPressed || event->type() == QEvent::KeyPress);
    if (m_editEvents++ == 0)
        m_refused.reset(); // left by a validation without an edit, of a text that was never shown
    const bool handled = QLineEdit::event(event);
    if (!self)
        return handled; // Return may have closed the window and destroyed the field
    m_keyPressed = outerKey;
    if (--m_editEvents == 0) {
        settle();
        remember();
    }
    return handled;
}

CheckedLineEdit::State CheckedLineEdit::state() const
{
    if (hasSelectedText())
        return {text(), {selectionStart(), selectionLength()}};
    return {text(), {cursorPosition(), 0}};
}

void CheckedLineEdit::remember()
{
    m_before = state();
}

void CheckedLineEdit::rememberSelection()
{
    // A different text means that an edit is in progress which has not been checked yet.
    if (!m_keyPressed && text() == m_before.text)
        remember();
}

/// Checks a text that the field is about to accept. During an edit event, settle() later replaces a refused text;
/// outside one, this function replaces the text itself, which loses the undo steps.
bool CheckedLineEdit::acceptsEdit(QString &proposed, int &cursor)
{
    // Only after setText() there is nothing to undo or redo.
    const bool programmatic = !isUndoAvailable() && !isRedoAvailable();
    if (m_settling || programmatic || proposed == m_before.text)
        return true;
    const TextSelection selection = hasSelectedText() ? state().selection : TextSelection{cursor, 0};
    const VettedEdit vetted = m_formatter.isPartialStringValid(proposed, selection, m_before.text, m_before.selection);
    m_refused.reset();
    if (vetted.accepted)
        return true;
    if (vetted.text == proposed) {
        cursor = int(vetted.selection.start);
        return true;
    }
    m_refused = Refused{proposed, vetted};
    if (m_editEvents > 0)
        return false;
    m_editSettled = m_editSettled || vetted.text != m_before.text;
    proposed = vetted.text;
    cursor = int(vetted.selection.start);
    return true;
}

/// Shows the text and selection that replace a refused edit.
void CheckedLineEdit::settle()
{
    if (!m_refused)
        return;
    const auto [proposed, instead] = *std::exchange(m_refused, {});
    const QScopedValueRollback settling(m_settling, true);
    if (text() == proposed) { // QLineEdit does not revert an undo or redo
        QLineEdit::setText(instead.text);
        m_editSettled = true;
    } else if (text() != instead.text) {
        selectAll();
        insert(instead.text);
    }
    select(instead.selection);
    if (instead.beep)
        beep();
}

void CheckedLineEdit::finish()
{
    if (!hasEdit())
        return;
    const QString shown = m_formatter.stringForObjectValue(value());
    if (shown == text())
        return;
    const QScopedValueRollback settling(m_settling, true);
    QLineEdit::setText(shown);
    m_editSettled = true;
}

void CheckedLineEdit::select(const TextSelection &selection)
{
    if (selection.length > 0)
        setSelection(int(selection.start), int(selection.length));
    else
        setCursorPosition(int(selection.start)); // also clears a selection
}

} // namespace brinemark

#include "moc_CheckedLineEdit.cpp"
