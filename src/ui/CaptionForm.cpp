// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/CaptionForm.h"

#include <QGridLayout>
#include <QLabel>

namespace brinemark
{

QLabel *makeCaption(const QString &text, QWidget *parent)
{
    auto *caption = new QLabel(text.trimmed(), parent);
    caption->setTextFormat(Qt::PlainText);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    return caption;
}

QLabel *makeValue(const QString &objectName, QWidget *parent)
{
    auto *value = new QLabel(parent);
    value->setObjectName(objectName);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    return value;
}

void addCaptioned(QGridLayout &grid, int row, int column, const QString &caption, QWidget *value)
{
    QLabel *label = makeCaption(caption);
    const bool isLabel = qobject_cast<QLabel *>(value) != nullptr;
    grid.addWidget(label, row, column * 2, Qt::AlignRight | (isLabel ? Qt::AlignTop : Qt::AlignVCenter));
    grid.addWidget(value, row, column * 2 + 1, isLabel ? Qt::AlignTop : Qt::Alignment());
    grid.setColumnStretch(column * 2 + 1, 1);
    label->setBuddy(value);
}

} // namespace brinemark
