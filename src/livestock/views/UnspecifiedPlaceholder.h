// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QLineEdit;
class QString;

namespace brinemark
{

/// Shows a stored text in a field. One that says that nothing was entered (see isUnspecified()) is shown as an empty
/// field; an empty field shows the text of "UnspecifiedHolder" in grey.
void setUnspecifiedPlaceholder(QLineEdit &field, const QString &stored);

} // namespace brinemark
