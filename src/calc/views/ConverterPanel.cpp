// SPDX-License-Identifier: GPL-3.0-or-later

#include "calc/views/ConverterPanel.h"

#include "base/text/NumberText.h"
#include "calc/UnitConversion.h"
#include "ui/CaptionForm.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace brinemark
{

ConverterPanel::ConverterPanel(QWidget *parent)
    : ToolPanel(parent)
    , m_typePopup(new QComboBox)
    , m_convertPopup(new QComboBox)
    , m_convertValueField(new QLineEdit)
    , m_convertResultField(new QLineEdit)
{
    setObjectName(QStringLiteral("convertWindow"));
    showHelpOnKey(this, QStringLiteral("converter"));
    setWindowTitle(text("ToolbarCalculate"));
    m_typePopup->setObjectName(QStringLiteral("typePopup"));
    m_typePopup->addItems(conversionKindTitles());
    m_convertPopup->setObjectName(QStringLiteral("convertPopup"));
    m_convertPopup->setMinimumContentsLength(32);
    m_convertValueField->setObjectName(QStringLiteral("convertValueField"));
    m_convertResultField->setObjectName(QStringLiteral("convertResultField"));
    m_convertResultField->setReadOnly(true);

    auto *form = new QGridLayout;
    form->setHorizontalSpacing(spacing::group);
    form->setVerticalSpacing(spacing::group);
    addCaptioned(*form, 0, 0, text("ConverterKind"), m_typePopup);
    addCaptioned(*form, 1, 0, text("ConverterConversion"), m_convertPopup);
    addCaptioned(*form, 2, 0, text("ConverterValue"), m_convertValueField);
    addCaptioned(*form, 3, 0, text("ConverterResult"), m_convertResultField);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::content, spacing::section, spacing::content, spacing::content);
    column->setSpacing(spacing::section);
    column->addWidget(makeCaption(text("ConverterSection")));
    column->addLayout(form);
    column->setSizeConstraint(QLayout::SetFixedSize);

    connect(m_typePopup, &QComboBox::currentIndexChanged, this, &ConverterPanel::typePopupAction);
    connect(m_convertPopup, &QComboBox::currentIndexChanged, this, &ConverterPanel::convertTypesAction);
    connect(m_convertValueField, &QLineEdit::textChanged, this, &ConverterPanel::convertTypesAction);
    typePopupAction();
}

void ConverterPanel::typePopupAction()
{
    const QSignalBlocker quiet(m_convertPopup);
    m_convertPopup->clear();
    m_convertPopup->addItems(conversionTitles(m_typePopup->currentIndex()));
    convertTypesAction();
}

void ConverterPanel::convertTypesAction()
{
    if (m_convertValueField->text().trimmed().isEmpty()) {
        m_convertResultField->clear();
        return;
    }
    const float result = convertUnits(m_typePopup->currentIndex(), m_convertPopup->currentIndex(),
                                      typedFloat(m_convertValueField->text()));
    m_convertResultField->setText(shownNumber(double(result), 6));
}

} // namespace brinemark

#include "moc_ConverterPanel.cpp"
