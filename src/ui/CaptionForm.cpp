// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/CaptionForm.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

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

void setCaptionOf(QWidget *control, QLabel *caption)
{
    caption->setBuddy(control);
    // For screen readers a buddy names only controls that stand beside it, not those inside of them.
    const auto *combo = qobject_cast<QComboBox *>(control);
    if (auto *field = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(control)) {
        QString name = caption->text().remove(u'&').trimmed();
        if (name.endsWith(u':'))
            name.chop(1);
        field->setAccessibleName(name);
    }
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
    setCaptionOf(value, label);
}

} // namespace brinemark
