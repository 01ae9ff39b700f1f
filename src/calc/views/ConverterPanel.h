// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/ToolPanel.h"

class QComboBox;
class QLineEdit;

namespace brinemark
{

/// The floating panel of the unit converter. Object names: "convertWindow", "typePopup", "convertPopup",
/// "convertValueField", "convertResultField".
class ConverterPanel : public ToolPanel
{
    Q_OBJECT

public:
    explicit ConverterPanel(QWidget *parent);

private:
    void typePopupAction();
    void convertTypesAction();

    QComboBox *m_typePopup;
    QComboBox *m_convertPopup;
    QLineEdit *m_convertValueField;
    QLineEdit *m_convertResultField;
};

} // namespace brinemark
