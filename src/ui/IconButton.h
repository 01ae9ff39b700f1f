// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QToolButton;

namespace brinemark
{

/// A flat button that shows only an icon (of ui/Icons.h); its title is the tool tip and what assistive technology
/// reads. It takes the focus by the tab key, not by a click.
[[nodiscard]] QToolButton *makeIconButton(const char *iconName, const QString &title, const QString &objectName);

} // namespace brinemark
