// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/ConditionColumnWindow.h"

#include "chemistry/ConditionColumns.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace brinemark
{

namespace
{

QString checkName(const ConditionColumnTraits &column)
{
    return QStringLiteral("column.") + column.identifier.toString();
}

} // namespace

ConditionColumnWindow::ConditionColumnWindow(QWidget *parent)
    : ToolPanel(parent)
    , m_label(new QLabel)
    , m_checks(new QWidget)
{
    setObjectName(QStringLiteral("customColumnWindow"));
    showHelpOnKey(this, QStringLiteral("condition-columns"));
    setWindowTitle(text("ConditionColumnsTitle"));
    m_label->setTextFormat(Qt::PlainText);
    auto *grid = new QGridLayout(m_checks);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(spacing::group);
    grid->setHorizontalSpacing(spacing::content + spacing::group);
    constexpr int rows = int(conditionColumnTable.size() + 1) / 2;
    int place = 0;
    for (const ConditionColumnTraits &column : conditionColumnTable) {
        auto *check = new QCheckBox(text(column.headerKey));
        check->setObjectName(checkName(column));
        connect(check, &QCheckBox::clicked, this, [this, tag = column.tag] { Q_EMIT columnToggled(tag); });
        grid->addWidget(check, place % rows, place / rows);
        ++place;
    }
    auto *content = new QVBoxLayout(this);
    content->setContentsMargins(spacing::aroundContent);
    content->setSpacing(spacing::section);
    content->addWidget(m_label);
    content->addWidget(m_checks);
    content->setSizeConstraint(QLayout::SetFixedSize);
}

void ConditionColumnWindow::showColumns(const QString &tankName, const std::function<bool(int)> &isShown)
{
    m_label->setText(fillPlaceholders(text("ConditionColumnsLabel"), {tankName}));
    m_checks->setEnabled(!tankName.isNull());
    const auto shown = std::ranges::count_if(conditionColumnTable,
                                             [&](const ConditionColumnTraits &column) { return isShown(column.tag); });
    for (const ConditionColumnTraits &column : conditionColumnTable) {
        auto *check = m_checks->findChild<QCheckBox *>(checkName(column));
        check->setChecked(isShown(column.tag));
        const bool isLast = shown == 1 && check->isChecked();
        check->setEnabled(!isLast);
        check->setToolTip(isLast ? text("LastColumnToolTip") : QString());
    }
}

} // namespace brinemark

#include "moc_ConditionColumnWindow.cpp"
