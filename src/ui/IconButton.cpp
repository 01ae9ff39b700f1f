// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/IconButton.h"

#include "ui/Icons.h"

#include <QToolButton>

namespace brinemark
{

QToolButton *makeIconButton(const char *iconName, const QString &title, const QString &objectName)
{
    auto *button = new QToolButton;
    button->setObjectName(objectName);
    button->setIcon(icon(iconName));
    button->setIconSize({16, 16});
    button->setAutoRaise(true);
    button->setToolTip(title);
    button->setAccessibleName(title);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace brinemark
