// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QToolButton;

namespace brinemark
{

/// A flat button that shows only an icon (see ui/Icons.h). Its title becomes the tool tip and the accessible name. It
/// takes the focus by the Tab key, not by a click.
[[nodiscard]] QToolButton *makeIconButton(const char *iconName, const QString &title, const QString &objectName);

} // namespace brinemark
