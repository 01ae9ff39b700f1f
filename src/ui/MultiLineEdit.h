// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPlainTextEdit>

namespace brinemark
{

/// The editor of every text of more than one line. Qt 6.4's own editors read the first of the formats of whatever is
/// pasted or dropped, and crash when there is none, as with an empty clipboard.
class MultiLineEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace brinemark
