// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/UnspecifiedPlaceholder.h"

#include "livestock/ProfileFields.h"

#include <QLineEdit>

namespace brinemark
{

void setUnspecifiedPlaceholder(QLineEdit &field, const QString &stored)
{
    field.setText(isUnspecified(stored) ? QString() : stored);
    field.setPlaceholderText(text("UnspecifiedHolder"));
    field.setCursorPosition(0); // the beginning of a long text says more than its end
}

} // namespace brinemark
